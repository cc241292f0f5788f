#pragma once

#include "foundation/StringU.h"

#include <cstddef>
#include <map>
#include <vector>

/// Names and their ids, both ways. As long as names come with rising ids, the entry of mTable at
/// the id of a name is that name; the ids may have gaps, which hold empty texts.
class TBidirectionalStringToIntMap
{
public:
    std::map<CStringU, int> mIndex; ///< from a name to its id
    std::vector<CStringU> mTable;   ///< from an id to its name

    /// Adds a name. A name that is known keeps its id. A new one makes mTable end with its id, so
    /// that an id below the last one takes the names behind it out of mTable; mIndex keeps them.
    /// @param rsName the name
    /// @param nId its id; with one below 0 mTable becomes empty
    /// @return the id that the name has now
    int Add(const CStringU& rsName, int nId);

    /// The id of a name; -1 for an unknown one.
    [[nodiscard]] int Find(const CStringU& rsName) const;

    /// The name of an id; empty for one that mTable doesn't have.
    [[nodiscard]] CStringU GetName(int nId) const;

    /// The size of mTable.
    [[nodiscard]] std::size_t GetCount() const noexcept { return mTable.size(); }
};
