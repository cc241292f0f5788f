#pragma once

#include "wizard/frame/PageLayout.h"
#include "wizard/output/PlotPage.h"
#include "wizard/output/PlotTerminals.h"
#include "wizard/output/TableColumn.h"

// The template of a page that prints results, in the look of its first plot type.

namespace Plot
{
inline constexpr auto kTerminalEntries = EntriesOf(kTerminals);

/// The texts of a page's template that are its own.
struct TTexts {
    const char* pGroup;
    const char* pExpressionNote;
    const char* pNameLabel = "Na&me (user-defined):";
    const char* pUnitLabel = "&Unit (user-defined):";
};

inline constexpr TColumns kColumns{.nField = 126};

constexpr auto FirstLine()
{
    return OnLayers(kFirstLayer, EditLine(kColumns, kFirstName, "first-name", "&Node name:"));
}

/// The second name, and the terminal in its place; one label stands for whichever is shown.
constexpr auto SecondLine()
{
    auto name = OnLayers(kSecondLayer,
                         EditLine(kColumns, kSecondName, "second-name", "&Reference node (GND):"));
    name.rows[0].row.nLayers |= kTerminalLayer;
    TPlacedRow terminal = name.rows[1];
    terminal.row =
        Row(kTerminal, "terminal-selection", EControl::DropDownList, "", name.rows[1].row.rect,
            kSharesLabel | kHidden, kTerminalLayer, kTerminalEntries);
    return SameTop(name, TBlock<1>{{terminal}, name.nHeight, name.nGap});
}

constexpr auto FormatLine()
{
    return OnLayers(kFormatLayer,
                    DropDownLine(kColumns, kFormat, "format", "&Format:", kComplexEntries));
}

/// The note in the place of the second name.
constexpr auto PowerNote()
{
    constexpr TRect kPlace{PageLayout::kLeft, 2, PageLayout::kWidth, kLabelHeight};
    return At(Row(kPowerNote, "power-note", EControl::Static,
                  "Voltage source name must begin with 'V'.", kPlace, kHidden, kPowerLayer));
}

constexpr auto ExpressionLines(const TTexts& rTexts)
{
    return WithFlags(kHidden,
                     OnLayers(kExpressionLayer,
                              Lines(WideEdit(kExpression, "expression", "E&xpression:"),
                                    NoteLine(kExpressionNote, "note", rTexts.pExpressionNote, 2))));
}

/// The rows of a page. `rLines`: what its plot types show that aren't expressions.
template <std::size_t N, class... TBlocks>
constexpr auto Rows(const TTexts& rTexts, const std::array<const char*, N>& rTypes,
                    const TBlocks&... rLines)
{
    return PageRows(GroupBox(kResultsGroup, "results-group", rTexts.pGroup,
                             DropDownLine(kColumns, kPlotType, "plot-type", "&Plot type:", rTypes),
                             SameTop(Lines(rLines...), ExpressionLines(rTexts))),
                    GroupBox(kOptionalGroup, "optional-group", "Optional",
                             EditLine(kColumns, kItemName, "item-name", rTexts.pNameLabel),
                             EditLine(kColumns, kItemUnit, "item-unit", rTexts.pUnitLabel)),
                    LabelledListLines(kList, "list", "&List of plot items:", 54, {kAdd, "&Add"},
                                      {kDelete, "&Delete"}, {kClear, "&Clear"}));
}
} // namespace Plot
