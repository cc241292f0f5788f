#pragma once

#include "params/archive/ClassTable.h"
#include "params/archive/TextSink.h"

#include <boost/archive/archive_exception.hpp>
#include <boost/mpl/bool.hpp>
#include <boost/serialization/nvp.hpp>
#include <boost/serialization/serialization.hpp>

#include <deque>
#include <map>
#include <set>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

/// Writes a text archive with the classes' own `serialize`, byte for byte as the archive library
/// does, but for the version in its head, which is always 17: readers of that version take it.
/// Pointers lead to objects of the same archive.
class CTextOArchive
{
public:
    using is_loading = boost::mpl::false_; ///< as the library's archives have it
    using is_saving = boost::mpl::true_;   ///< as the library's archives have it

    /// Writes the signature and the version.
    explicit CTextOArchive(IByteTarget& rTarget);

    /// Writes a value; its name doesn't go into the file.
    /// @throws boost::archive::archive_exception for a pointer to what wasn't written before
    template <class T> CTextOArchive& operator&(const boost::serialization::nvp<T>& rPair)
    {
        Save(rPair.value());
        return *this;
    }
    /// Writes a value.
    template <class T> CTextOArchive& operator<<(const T& rValue)
    {
        Save(rValue);
        return *this;
    }

    /// Ends the archive.
    void Finish() { mSink.Finish(); }

private:
    template <class T> void Save(const T& rValue)
    {
        if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, int>) {
            mSink.Write(static_cast<std::int64_t>(rValue));
        } else if constexpr (std::is_same_v<T, double>) {
            mSink.Write(rValue);
        } else if constexpr (std::is_pointer_v<T>) {
            SavePointer(rValue);
        } else {
            SaveObject(rValue);
        }
    }

    template <class T> void SaveObject(const T& rObject)
    {
        SaveClass<T>();
        if constexpr (kTracked<T>) {
            mSink.NewLine();
            mSink.Write(std::int64_t{mnObjects});
            if constexpr (kStoredByPointer<T>) {
                IdsOf<T>().emplace(&rObject, mnObjects);
            }
            ++mnObjects;
        }
        SaveMembers(rObject);
    }

    template <class T> void SaveClass()
    {
        TArchiveClass<T>& rClass = mClasses.Meet<T>();
        if (!rClass.mbDescribed) {
            mSink.Write(std::int64_t{kTracked<T>});
            mSink.Write(std::int64_t{kClassVersion<T>});
            rClass.mbDescribed = true;
        }
    }

    template <class T> void SavePointer(const T* pObject)
    {
        const TArchiveClass<T>& rClass = mClasses.Meet<T>();
        if (pObject == nullptr) {
            mSink.Write(std::int64_t{-1});
            return;
        }
        const auto id = IdsOf<T>().find(pObject);
        if (id == IdsOf<T>().end()) {
            throw boost::archive::archive_exception(
                boost::archive::archive_exception::pointer_conflict);
        }
        mSink.Write(std::int64_t{rClass.mnId});
        mSink.Write(std::int64_t{id->second});
    }

    /// By the `serialize` of the class, which takes what isn't constant, as in every archive.
    template <class T> void SaveMembers(const T& rObject)
    {
        boost::serialization::serialize_adl(*this, const_cast<T&>(rObject), kClassVersion<T>);
    }

    void SaveMembers(const CStringU& rsText) { mSink.Write(rsText.Text()); }

    void SaveMembers(const TParamValue& rValue);

    template <class TFirst, class TSecond> void SaveMembers(const std::pair<TFirst, TSecond>& rPair)
    {
        Save(rPair.first);
        Save(rPair.second);
    }

    template <class T> void SaveMembers(const std::vector<T>& rItems) { SaveItems(rItems); }
    template <class T> void SaveMembers(const std::deque<T>& rItems) { SaveItems(rItems); }
    template <class T> void SaveMembers(const std::set<T>& rItems) { SaveItems(rItems); }
    template <class TKey, class T, class TLess>
    void SaveMembers(const std::map<TKey, T, TLess>& rItems)
    {
        SaveItems(rItems);
    }

    template <class TItems> void SaveItems(const TItems& rItems)
    {
        mSink.Write(static_cast<std::int64_t>(rItems.size()));
        mSink.Write(std::int64_t{kClassVersion<typename TItems::value_type>});
        for (const auto& rItem : rItems) {
            Save(rItem);
        }
    }

    template <class T> using TIds = std::unordered_map<const T*, unsigned>;
    template <class T> TIds<T>& IdsOf() noexcept { return std::get<TIds<T>>(mIds); }

    CTextSink mSink;
    CClassTable mClasses;
    std::tuple<TIds<TModelClassDef>, TIds<TModelData>> mIds; // of what pointers may lead to
    unsigned mnObjects = 0;                                  // ids that were given
};
