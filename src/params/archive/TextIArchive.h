#pragma once

#include "params/archive/ClassTable.h"
#include "params/archive/KnownObjects.h"
#include "params/archive/LeastBytes.h"
#include "params/archive/TextScanner.h"

#include <boost/mpl/bool.hpp>
#include <boost/serialization/nvp.hpp>
#include <boost/serialization/serialization.hpp>

#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

/// Reads a text archive of the archive library, with the classes' own `serialize`. Where the
/// library's archive trusts the file, this one checks: ids, class numbers, versions and counts are
/// those that a writer would have given, and a pointer leads to an object that is there. Elements
/// are read in their place in the container, and nothing is reserved by a count.
///
/// Every operation throws CParamsArchiveError on what it can't take.
class CTextIArchive
{
public:
    using is_loading = boost::mpl::true_; ///< as the library's archives have it
    using is_saving = boost::mpl::false_; ///< as the library's archives have it

    /// Reads the signature and the version, which may be 6 to 19: these have one grammar.
    explicit CTextIArchive(IByteSource& rSource);

    /// Reads a value; its name isn't in the file.
    template <class T> CTextIArchive& operator&(const boost::serialization::nvp<T>& rPair)
    {
        Load(rPair.value());
        return *this;
    }
    /// Reads a value.
    template <class T> CTextIArchive& operator>>(T& rValue)
    {
        Load(rValue);
        return *this;
    }

    /// The version of the archive, as the file has it.
    [[nodiscard]] int GetVersion() const noexcept { return mnVersion; }

private:
    using TError = boost::archive::archive_exception;

    template <class T> void Load(T& rValue)
    {
        if constexpr (std::is_same_v<T, bool>) {
            rValue = mScanner.ReadBool();
        } else if constexpr (std::is_same_v<T, int>) {
            rValue = mScanner.ReadInt();
        } else if constexpr (std::is_same_v<T, double>) {
            rValue = mScanner.ReadDouble();
        } else if constexpr (std::is_pointer_v<T>) {
            LoadPointer(rValue);
        } else {
            LoadObject(rValue);
        }
    }

    template <class T> void LoadObject(T& rObject)
    {
        LoadClass<T>();
        if constexpr (kTracked<T>) {
            const unsigned nId = LoadNewId();
            if constexpr (kStoredByPointer<T>) {
                KnownOf<T>().Add(nId, &rObject);
            }
        }
        LoadMembers(rObject);
    }

    /// What is told of a class where it is met first, unless that was a null pointer.
    template <class T> void LoadClass()
    {
        TArchiveClass<T>& rClass = mClasses.Meet<T>();
        if (!rClass.mbDescribed) {
            CheckClass(kTracked<T>, kClassVersion<T>);
            rClass.mbDescribed = true;
        }
    }

    template <class T> void LoadPointer(T*& rpObject)
    {
        const TArchiveClass<T>& rClass = mClasses.Meet<T>();
        rpObject = nullptr;
        const int nClass = mScanner.ReadInt();
        if (nClass == kNullPointer) {
            return;
        }
        if (nClass != rClass.mnId) {
            mScanner.Refuse(TError::unregistered_class, "a pointer of another class");
        }
        if (!rClass.mbDescribed) {
            mScanner.Refuse(TError::unregistered_class, "a pointer in front of all its class");
        }
        if (!KnownOf<T>().Find(ReadId(), rpObject)) {
            mScanner.Refuse(TError::pointer_conflict, "a pointer to no object of its class");
        }
    }

    /// By the `serialize` of the class.
    template <class T> void LoadMembers(T& rObject)
    {
        boost::serialization::serialize_adl(*this, rObject, kClassVersion<T>);
    }

    void LoadMembers(CStringU& rsText)
    {
        rsText.Assign(mScanner.ReadText(), TTextKind::Utf8IfNeeded);
    }

    void LoadMembers(TParamValue& rValue);

    template <class TFirst, class TSecond> void LoadMembers(std::pair<TFirst, TSecond>& rPair)
    {
        Load(rPair.first);
        Load(rPair.second);
    }

    template <class T> void LoadMembers(std::vector<T>& rItems) { LoadSequence(rItems); }
    template <class T> void LoadMembers(std::deque<T>& rItems) { LoadSequence(rItems); }

    template <class TSequence> void LoadSequence(TSequence& rItems)
    {
        rItems.clear();
        for (std::uint64_t n = LoadCount<typename TSequence::value_type>(); n > 0; --n) {
            Load(rItems.emplace_back());
        }
    }

    template <class T> void LoadMembers(std::set<T>& rItems)
    {
        rItems.clear();
        for (std::uint64_t n = LoadCount<T>(); n > 0; --n) {
            T item{};
            Load(item);
            rItems.emplace_hint(rItems.end(), std::move(item));
        }
    }

    template <class TKey, class T, class TLess> void LoadMembers(std::map<TKey, T, TLess>& rItems)
    {
        using TPair = typename std::map<TKey, T, TLess>::value_type;
        rItems.clear();
        for (std::uint64_t n = LoadCount<TPair>(); n > 0; --n) {
            LoadClass<TPair>();
            TKey key{};
            Load(key);
            const std::size_t nBefore = rItems.size();
            const auto item = rItems.try_emplace(rItems.end(), std::move(key));
            if (rItems.size() != nBefore) {
                Load(item->second);
            } else {
                LoadDropped(item->second); // a key that was there already
            }
        }
    }

    /// Reads a value that has no place. Pointers to it lead to the one in its place, and pointers
    /// to what is inside it become null.
    template <class T> void LoadDropped(T& rInItsPlace)
    {
        const std::size_t nClasses = KnownOf<TModelClassDef>().GetCount();
        const std::size_t nModels = KnownOf<TModelData>().GetCount();
        T dropped{};
        Load(dropped);
        KnownOf<TModelClassDef>().DropFrom(nClasses);
        KnownOf<TModelData>().DropFrom(nModels);
        if constexpr (kStoredByPointer<T>) {
            KnownOf<T>().Replace(std::is_same_v<T, TModelData> ? nModels : nClasses, &rInItsPlace);
        }
    }

    template <class T> CKnownObjects<T>& KnownOf() noexcept
    {
        return std::get<CKnownObjects<T>>(mKnown);
    }

    /// The head of a container.
    template <class TItem> std::uint64_t LoadCount()
    {
        const std::uint64_t nCount = ReadCount(kLeastBytes<TItem>);
        CheckItemVersion(kClassVersion<TItem>);
        return nCount;
    }

    void CheckClass(bool bTracked, unsigned nVersion);
    void CheckItemVersion(unsigned nVersion);
    std::uint64_t ReadCount(unsigned nLeastBytes);
    unsigned ReadId();
    unsigned LoadNewId();

    static constexpr int kNullPointer = -1;

    CTextScanner mScanner;
    CClassTable mClasses;
    std::tuple<CKnownObjects<TModelClassDef>, CKnownObjects<TModelData>> mKnown;
    unsigned mnObjects = 0; // ids that were given
    int mnVersion = 0;
};
