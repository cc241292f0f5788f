#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

/// The objects of one class that were read so far, by their ids. Pointers may lead to them.
template <class T> class CKnownObjects
{
public:
    /// Adds an object whose id is above all others; null for one that was read and dropped.
    void Add(unsigned nId, T* pObject) { mObjects.push_back({nId, pObject}); }

    /// Finds an object.
    /// @param rpObject receives it; null if it was dropped
    /// @return false if there is none of that id
    [[nodiscard]] bool Find(unsigned nId, T*& rpObject) const
    {
        const auto found = std::ranges::lower_bound(mObjects, nId, {}, &TKnown::mnId);
        if (found == mObjects.end() || found->mnId != nId) {
            return false;
        }
        rpObject = found->mpObject;
        return true;
    }

    /// How many there are.
    [[nodiscard]] std::size_t GetCount() const noexcept { return mObjects.size(); }

    /// Says of all from a place on that they were dropped.
    void DropFrom(std::size_t nFirst)
    {
        for (; nFirst < mObjects.size(); ++nFirst) {
            mObjects[nFirst].mpObject = nullptr;
        }
    }

    /// Puts another object in the place of one.
    void Replace(std::size_t nPlace, T* pObject) { mObjects[nPlace].mpObject = pObject; }

private:
    struct TKnown {
        unsigned mnId;
        T* mpObject;
    };
    std::vector<TKnown> mObjects;
};
