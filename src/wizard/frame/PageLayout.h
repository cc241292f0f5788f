#pragma once

#include "platform/ui/TemplateRows.h"
#include "platform/ui/Translate.h"
#include "wizard/frame/CommandPage.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

// A page as a list of lines from top to bottom, from which the places of its controls follow. A
// block is one line or several; blocks are stacked, framed, set side by side or laid over each
// other. All measures are dialog units.

/// A translatable literal as a template holds it: without the marker.
constexpr const char* Unmarked(const char* pLiteral)
{
    return pLiteral + xlang::kTranslationMarker.size();
}

/// A control in a block, and the edges of the pane that it reaches: a group box around it, or a
/// neighbour beside it, moves those.
struct TPlacedRow {
    TControlRow row;
    bool bFromLeft = false;
    bool bToRight = false;
};

/// Controls, placed below the block's own top.
template <std::size_t N> struct TBlock {
    std::array<TPlacedRow, N> rows;
    int nHeight;
    int nGap; ///< least distance to its neighbours above and below
};

/// Where the fields of a pane's lines stand. A label begins at the left edge and ends before the
/// field; the field reaches to the right edge, or to its unit, which does.
struct TColumns {
    int nField;    ///< left edge of the fields
    int nUnit = 0; ///< left edge of the units; 0: no line has one
};

namespace PageLayout
{
inline constexpr int kTop = 7;
inline constexpr int kLeft = 7;
inline constexpr int kRight = kPageSize.cx - 7;
inline constexpr int kWidth = kRight - kLeft;

inline constexpr int kChoiceHeight = 12;
inline constexpr int kLineGap = 4;
inline constexpr int kChoiceGap = 2;
inline constexpr int kGroupGap = 6;
inline constexpr int kListButtonWidth = 50;
inline constexpr int kAboveField = kLabelHeight + 2; ///< from the top of a label above its field

// Inside a group box, from its frame.
inline constexpr int kGroupTop = 12;
inline constexpr int kGroupSide = 7;
inline constexpr int kGroupBottom = 5;

/// A control that reaches from edge to edge.
constexpr TBlock<1> Whole(int nId, const char* pKey, EControl kind, const char* pLabel, int nHeight,
                          int nGap, unsigned nFlags = kNoFlags)
{
    return {{{{Row(nId, pKey, kind, pLabel, {kLeft, 0, kWidth, nHeight}, nFlags), true, true}}},
            nHeight,
            nGap};
}

/// A field on a line of its own with its label to the left.
constexpr TBlock<2> Line(const TColumns& rColumns, const TControlRow& rField, const char* pLabel)
{
    const int nEnd = rColumns.nUnit > 0 ? rColumns.nUnit - 4 : kRight;
    TControlRow field = rField;
    field.rect = {rColumns.nField, 0, nEnd - rColumns.nField, kEditHeight};
    const TRect label{kLeft, 2, rColumns.nField - 3 - kLeft, kLabelHeight};
    return {{{{LabelFor(field, pLabel, label), true, false}, {field, false, rColumns.nUnit == 0}}},
            kEditHeight,
            kLineGap};
}

template <std::size_t N>
constexpr TBlock<N> Moved(TBlock<N> block, int nLeft, int nDown, int nRight)
{
    for (TPlacedRow& rPlaced : block.rows) {
        TRect& rRect = rPlaced.row.rect;
        rRect.y += nDown;
        if (rPlaced.bFromLeft) {
            rRect.x += nLeft;
            rRect.w -= nLeft;
        }
        if (rPlaced.bToRight)
            rRect.w -= nRight;
    }
    return block;
}

template <std::size_t N, std::size_t M>
constexpr std::array<TPlacedRow, N + M> Joined(const std::array<TPlacedRow, N>& rFirst,
                                               const std::array<TPlacedRow, M>& rSecond)
{
    std::array<TPlacedRow, N + M> rows{};
    std::copy(rSecond.begin(), rSecond.end(),
              std::copy(rFirst.begin(), rFirst.end(), rows.begin()));
    return rows;
}
/// Lets a group box at the block's end reach down to `nHeight`.
template <std::size_t N> constexpr void StretchFrames(TBlock<N>& rBlock, int nHeight)
{
    for (TPlacedRow& rPlaced : rBlock.rows)
        if (rPlaced.row.kind == EControl::Group && rPlaced.row.rect.Bottom() == rBlock.nHeight)
            rPlaced.row.rect.h = nHeight - rPlaced.row.rect.y;
}
} // namespace PageLayout

/// Blocks one above the other.
template <std::size_t N> constexpr TBlock<N> Lines(const TBlock<N>& rOnly)
{
    return rOnly;
}
template <std::size_t N, std::size_t M, class... TMore>
constexpr auto Lines(const TBlock<N>& rUpper, const TBlock<M>& rLower, const TMore&... rMore)
{
    using namespace PageLayout;
    const int nTop = rUpper.nHeight + std::max(rUpper.nGap, rLower.nGap);
    // The gap below is the lower block's; the one above is not asked for again.
    const TBlock<N + M> both{Joined(rUpper.rows, Moved(rLower, 0, nTop, 0).rows),
                             nTop + rLower.nHeight, rLower.nGap};
    return Lines(both, rMore...);
}

/// A one-line edit with its label to the left.
constexpr TBlock<2> EditLine(const TColumns& rColumns, int nId, const char* pKey,
                             const char* pLabel)
{
    return PageLayout::Line(rColumns, Row(nId, pKey, EControl::Edit, "", {}), pLabel);
}

/// The same with a unit behind the edit.
constexpr TBlock<3> EditLine(const TColumns& rColumns, int nId, const char* pKey,
                             const char* pLabel, const char* pUnit)
{
    const TBlock<2> line = EditLine(rColumns, nId, pKey, pLabel);
    TPlacedRow unit = line.rows[0];
    unit.row.nId = UnitOf(nId);
    unit.row.pLabel = pUnit;
    unit.row.rect.x = rColumns.nUnit;
    unit.row.rect.w = PageLayout::kRight - rColumns.nUnit;
    unit.bFromLeft = false;
    unit.bToRight = true;
    return {{line.rows[0], line.rows[1], unit}, line.nHeight, line.nGap};
}

/// A choice among `entries` with its label to the left.
/// `kind`: DropDownList, or DropDown where the user may type another text.
constexpr TBlock<2> DropDownLine(const TColumns& rColumns, int nId, const char* pKey,
                                 const char* pLabel, std::span<const char* const> entries,
                                 EControl kind = EControl::DropDownList)
{
    return PageLayout::Line(rColumns, Row(nId, pKey, kind, "", {}, kNoFlags, 0, entries), pLabel);
}

/// A one-line edit as wide as the pane with its label above.
/// `nLabelLines`: the lines that the label needs.
constexpr TBlock<2> WideEdit(int nId, const char* pKey, const char* pLabel, int nLabelLines = 1)
{
    using namespace PageLayout;
    const int nLabelHeight = nLabelLines * kLabelHeight;
    const int nTop = nLabelHeight + 2;
    const auto field =
        Moved(Whole(nId, pKey, EControl::Edit, "", kEditHeight, kLineGap), 0, nTop, 0);
    const TPlacedRow label{LabelFor(field.rows[0].row, pLabel, {kLeft, 0, kWidth, nLabelHeight}),
                           true, true};
    return {{label, field.rows[0]}, nTop + kEditHeight, kLineGap};
}

/// The same with a unit behind the edit. `nUnit`: the unit's left edge.
constexpr TBlock<3> WideEdit(int nId, const char* pKey, const char* pLabel, const char* pUnit,
                             int nUnit)
{
    using namespace PageLayout;
    const TBlock<2> wide = WideEdit(nId, pKey, pLabel);
    TPlacedRow field = wide.rows[1];
    field.row.rect.w = nUnit - 4 - kLeft;
    field.bToRight = false;
    const TRect unitRect{nUnit, kAboveField + 2, kRight - nUnit, kLabelHeight};
    const TPlacedRow unit{UnitFor(field.row, pUnit, unitRect), false, true};
    return {{wide.rows[0], field, unit}, wide.nHeight, wide.nGap};
}

/// An edit of several lines as wide as the pane, in which Enter starts a new line.
/// `nHeight`: the edit's own. `nLabelLines`: the lines that the label above it needs.
constexpr TBlock<2> TextBox(int nId, const char* pKey, const char* pLabel, int nHeight,
                            int nLabelLines = 1)
{
    using namespace PageLayout;
    const int nTop = nLabelLines * kLabelHeight + 2;
    const auto field = Moved(
        Whole(nId, pKey, EControl::MultilineEdit, "", nHeight, kLineGap, kWantReturn), 0, nTop, 0);
    const TPlacedRow label{
        LabelFor(field.rows[0].row, pLabel, {kLeft, 0, kWidth, nLabelLines * kLabelHeight}), true,
        true};
    return {{label, field.rows[0]}, nTop + nHeight, kLineGap};
}

/// A check box.
constexpr TBlock<1> CheckLine(int nId, const char* pKey, const char* pLabel)
{
    using namespace PageLayout;
    return Whole(nId, pKey, EControl::CheckBox, pLabel, kChoiceHeight, kChoiceGap);
}

/// An edit without a label of its own: the title of the group box around it is its label.
constexpr TBlock<1> BareEdit(int nId, const char* pKey)
{
    using namespace PageLayout;
    return Whole(nId, pKey, EControl::Edit, "", kEditHeight, kLineGap, kUnlabelled);
}

/// A button among others: its id and its label.
struct TChoice {
    int nId;
    const char* pLabel;
};

/// A radio group, one button to a line; the ids stand in this order.
template <class... TChoices>
constexpr auto RadioLines(const char* pKey, const TChoice& rFirst, const TChoices&... rMore)
{
    using namespace PageLayout;
    const auto button = [pKey](const TChoice& rChoice, unsigned nFlags) {
        return Whole(rChoice.nId, pKey, EControl::RadioButton, rChoice.pLabel, kChoiceHeight,
                     kChoiceGap, nFlags);
    };
    return Lines(button(rFirst, kFirstOfGroup), button(rMore, kNoFlags)...);
}

/// A text of its own, `nLines` lines high.
constexpr TBlock<1> NoteLine(int nId, const char* pKey, const char* pText, int nLines = 1)
{
    using namespace PageLayout;
    return Whole(nId, pKey, EControl::Static, pText, nLines * kLabelHeight, kLineGap);
}

/// `nHeight` without a control.
constexpr TBlock<0> Space(int nHeight)
{
    return {{}, nHeight, 0};
}

/// A control of any kind on a line of its own, at the place that its row says, measured from the
/// line's top. It keeps to the edges of the pane that it reaches.
constexpr TBlock<1> At(const TControlRow& rRow)
{
    using namespace PageLayout;
    return {{{{rRow, rRow.rect.x == kLeft, rRow.rect.Right() == kRight}}},
            rRow.rect.Bottom(),
            kLineGap};
}

/// The same with a label right above it; the row's top says where the label's line ends.
constexpr TBlock<2> LabelledAt(TControlRow row, const char* pLabel)
{
    row.rect.y += PageLayout::kAboveField;
    const auto rows = LabelAbove(row, pLabel);
    return {{{At(rows[0]).rows[0], At(rows[1]).rows[0]}}, row.rect.Bottom(), PageLayout::kLineGap};
}

/// Blocks that begin at the same height: those of which only one is shown at a time, and those
/// whose controls stand beside each other.
template <std::size_t N> constexpr TBlock<N> SameTop(const TBlock<N>& rOnly)
{
    return rOnly;
}
template <std::size_t N, std::size_t M, class... TMore>
constexpr auto SameTop(const TBlock<N>& rOne, const TBlock<M>& rOther, const TMore&... rMore)
{
    const TBlock<N + M> both{PageLayout::Joined(rOne.rows, rOther.rows),
                             std::max(rOne.nHeight, rOther.nHeight),
                             std::max(rOne.nGap, rOther.nGap)};
    return SameTop(both, rMore...);
}

/// Two blocks side by side; the second begins at `nX`. The columns of each are those of the page.
template <std::size_t N, std::size_t M>
constexpr TBlock<N + M> Beside(int nX, const TBlock<N>& rLeft, const TBlock<M>& rRight)
{
    using namespace PageLayout;
    auto left = Moved(rLeft, 0, 0, kRight - nX + kGroupGap);
    auto right = Moved(rRight, nX - kLeft, 0, 0);
    // Frames that end together look like one row of them.
    const int nHeight = std::max(left.nHeight, right.nHeight);
    StretchFrames(left, nHeight);
    StretchFrames(right, nHeight);
    // Where they meet is no edge of the pane.
    for (TPlacedRow& rPlaced : left.rows)
        rPlaced.bToRight = false;
    for (TPlacedRow& rPlaced : right.rows)
        rPlaced.bFromLeft = false;
    return SameTop(left, right);
}

/// Blocks, one above the other, in a titled frame.
template <class... TBlocks>
constexpr auto GroupBox(int nId, const char* pKey, const char* pTitle, const TBlocks&... rBlocks)
{
    using namespace PageLayout;
    const auto inner = Moved(Lines(rBlocks...), kGroupSide, kGroupTop, kGroupSide);
    const int nHeight = kGroupTop + inner.nHeight + kGroupBottom;
    const unsigned nFlags = *pTitle == '\0' ? kUnlabelled : kNoFlags;
    const auto frame = Whole(nId, pKey, EControl::Group, pTitle, nHeight, kGroupGap, nFlags);
    return TBlock<1 + inner.rows.size()>{Joined(frame.rows, inner.rows), nHeight, kGroupGap};
}

/// Blocks one above the other with half the distance, for a page that has much to show.
template <class... TBlocks> constexpr auto Tight(TBlocks... blocks)
{
    ((blocks.nGap /= 2), ...);
    return Lines(blocks...);
}

/// The keys of a list's buttons, for a page that has more than one list.
struct TListKeys {
    const char* pAdd = "add";
    const char* pDelete = "delete";
    const char* pClear = "clear";
};

namespace PageLayout
{
/// The buttons beside a list, the last two disabled as an empty list has them.
constexpr auto ListButtons(const TChoice& rAdd, const TChoice& rDelete, const TChoice& rClear,
                           unsigned nAddFlags, const TListKeys& rKeys = {})
{
    const auto button = [](const TChoice& rButton, const char* pKey, unsigned nFlags) {
        return At(Row(rButton.nId, pKey, EControl::PushButton, rButton.pLabel,
                      {kRight - kListButtonWidth, 0, kListButtonWidth, 14}, nFlags));
    };
    return Lines(button(rAdd, rKeys.pAdd, nAddFlags), button(rDelete, rKeys.pDelete, kDisabled),
                 button(rClear, rKeys.pClear, kDisabled));
}

constexpr TRect ListRect(int nHeight)
{
    return {kLeft, 0, kRight - kListButtonWidth - kGroupGap - kLeft, nHeight};
}
} // namespace PageLayout

/// A list box with the buttons "add", "delete" and "clear" beside it, the last two disabled as an
/// empty list has them. `nHeight`: the list's, at least that of the buttons, 50.
constexpr auto ListLines(int nList, const char* pKey, int nHeight, const TChoice& rAdd,
                         const TChoice& rDelete, const TChoice& rClear)
{
    using namespace PageLayout;
    return SameTop(At(Row(nList, pKey, EControl::ListBox, "", ListRect(nHeight), kUnlabelled)),
                   ListButtons(rAdd, rDelete, rClear, kNoFlags));
}

/// The same with a label above the list and all three buttons disabled, for a page that enables
/// "add" when there is something to be added.
constexpr auto LabelledListLines(int nList, const char* pKey, const char* pLabel, int nHeight,
                                 const TChoice& rAdd, const TChoice& rDelete, const TChoice& rClear,
                                 const TListKeys& rKeys = {})
{
    using namespace PageLayout;
    return SameTop(LabelledAt(Row(nList, pKey, EControl::ListBox, "", ListRect(nHeight)), pLabel),
                   Moved(ListButtons(rAdd, rDelete, rClear, kDisabled, rKeys), 0, kAboveField, 0));
}

/// The block with these flags added to all its controls.
template <std::size_t N> constexpr TBlock<N> WithFlags(unsigned nFlags, TBlock<N> block)
{
    for (TPlacedRow& rPlaced : block.rows)
        rPlaced.row.nFlags |= nFlags;
    return block;
}

/// The block, shown on these layers only.
template <std::size_t N> constexpr TBlock<N> OnLayers(unsigned nLayers, TBlock<N> block)
{
    for (TPlacedRow& rPlaced : block.rows)
        rPlaced.row.nLayers = nLayers;
    return block;
}

/// The rows of a page: its blocks from top to bottom.
template <class... TBlocks> constexpr auto PageRows(const TBlocks&... rBlocks)
{
    using namespace PageLayout;
    const auto page = Moved(Lines(rBlocks...), 0, kTop, 0);
    std::array<TControlRow, page.rows.size()> rows{};
    std::ranges::transform(page.rows, rows.begin(), &TPlacedRow::row);
    return rows;
}
