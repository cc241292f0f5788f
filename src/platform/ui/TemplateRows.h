#pragma once

#include "platform/ui/DialogTemplate.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>

// A template's rows, a field together with its label and its unit.

inline constexpr int kLabelHeight = 9;
inline constexpr int kEditHeight = 13;

/// The label of a field at a place of its own.
constexpr TControlRow LabelFor(const TControlRow& rField, const char* pLabel, const TRect& rRect)
{
    return Row(LabelOf(rField.nId), rField.pKey, EControl::Label, pLabel, rRect,
               rField.nFlags & (kHidden | kDisabled), rField.nLayers);
}

/// The unit behind a field, at a place of its own.
constexpr TControlRow UnitFor(const TControlRow& rField, const char* pUnit, const TRect& rRect)
{
    TControlRow unit = LabelFor(rField, pUnit, rRect);
    unit.nId = UnitOf(rField.nId);
    return unit;
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
