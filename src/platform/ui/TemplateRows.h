#pragma once

#include "platform/ui/DialogTemplate.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>

// A template's rows as a list of lines. A line is one row or an array of rows: a field with the
// label and the unit that belong to it.

/// The columns of a pane and the distance of its lines, in dialog units.
struct TGrid {
    int nLabelX;
    int nLabelWidth;
    int nFieldX;
    int nFieldWidth;
    int nUnitX;
    int nUnitWidth;
    int nTop;   ///< top of line 0
    int nPitch; ///< from one line to the next
};

inline constexpr int kLabelHeight = 9;
inline constexpr int kEditHeight = 13;

/// The label of a field at a place of its own.
constexpr TControlRow LabelFor(const TControlRow& rField, const char* pLabel, const TRect& rRect)
{
    return Row(LabelOf(rField.nId), rField.pKey, EControl::Label, pLabel, rRect,
               rField.nFlags & (kHidden | kDisabled), rField.nLayers);
}

/// A field with its label right above it. `nLabelHeight`: a multiple of `kLabelHeight` for a label
/// of several lines.
constexpr std::array<TControlRow, 2> LabelAbove(const TControlRow& rField, const char* pLabel,
                                                int nLabelHeight = kLabelHeight)
{
    const TRect& rAt = rField.rect;
    return {LabelFor(rField, pLabel, {rAt.x, rAt.y - nLabelHeight - 2, rAt.w, nLabelHeight}),
            rField};
}

/// A one-line edit with its label to the left, on line `nLine` of the grid.
constexpr std::array<TControlRow, 2> EditLine(const TGrid& rGrid, int nLine, int nId,
                                              const char* pKey, const char* pLabel,
                                              unsigned nFlags = kNoFlags, unsigned nLayers = 0)
{
    const int nTop = rGrid.nTop + nLine * rGrid.nPitch;
    const TControlRow field =
        Row(nId, pKey, EControl::Edit, "", {rGrid.nFieldX, nTop, rGrid.nFieldWidth, kEditHeight},
            nFlags, nLayers);
    return {LabelFor(field, pLabel, {rGrid.nLabelX, nTop + 2, rGrid.nLabelWidth, kLabelHeight}),
            field};
}

/// The same with a unit behind the edit.
constexpr std::array<TControlRow, 3> EditLineWithUnit(const TGrid& rGrid, int nLine, int nId,
                                                      const char* pKey, const char* pLabel,
                                                      const char* pUnit, unsigned nFlags = kNoFlags,
                                                      unsigned nLayers = 0)
{
    const auto line = EditLine(rGrid, nLine, nId, pKey, pLabel, nFlags, nLayers);
    TControlRow unit = line[0];
    unit.nId = UnitOf(nId);
    unit.pLabel = pUnit;
    unit.rect.x = rGrid.nUnitX;
    unit.rect.w = rGrid.nUnitWidth;
    return {line[0], line[1], unit};
}

namespace TemplateRowsDetail
{
constexpr TControlRow* Append(TControlRow* pEnd, const TControlRow& rRow)
{
    *pEnd = rRow;
    return pEnd + 1;
}

template <std::size_t N>
constexpr TControlRow* Append(TControlRow* pEnd, const std::array<TControlRow, N>& rRows)
{
    return std::copy(rRows.begin(), rRows.end(), pEnd);
}

template <class TLine> struct TRowCount : std::integral_constant<std::size_t, 1> {
};
template <std::size_t N>
struct TRowCount<std::array<TControlRow, N>> : std::integral_constant<std::size_t, N> {
};
} // namespace TemplateRowsDetail

/// The rows of all lines, in order: a template's table.
template <class... TLines> constexpr auto JoinRows(const TLines&... rLines)
{
    using namespace TemplateRowsDetail;
    std::array<TControlRow, (TRowCount<TLines>::value + ...)> rows{};
    TControlRow* pEnd = rows.data();
    ((pEnd = Append(pEnd, rLines)), ...);
    return rows;
}
