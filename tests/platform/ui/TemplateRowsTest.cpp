#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>

namespace
{
constexpr TGrid kGrid{7, 60, 70, 80, 155, 30, 10, 18};
constexpr const char* kEntries[] = {"a", "b"};

constexpr auto kField = Row(1, "f", EControl::DropDownList, "", {10, 40, 50, 13},
                            kSorted | kDisabled | kHidden, 4, kEntries);

void ExpectRow(const TControlRow& rRow, const TControlRow& rExpected)
{
    SCOPED_TRACE(rExpected.nId);
    EXPECT_EQ(rRow.nId, rExpected.nId);
    EXPECT_EQ(std::string_view(rRow.pKey), rExpected.pKey);
    EXPECT_EQ(rRow.kind, rExpected.kind);
    EXPECT_EQ(std::string_view(rRow.pLabel), rExpected.pLabel);
    EXPECT_EQ(rRow.rect, rExpected.rect);
    EXPECT_EQ(rRow.nFlags, rExpected.nFlags);
    EXPECT_EQ(rRow.nLayers, rExpected.nLayers);
    EXPECT_EQ(rRow.entries.data(), rExpected.entries.data());
    EXPECT_EQ(rRow.entries.size(), rExpected.entries.size());
}

TEST(TemplateRowsTest, LabelAndUnitIdsAreDerived)
{
    static_assert(LabelOf(1001) == 11001);
    static_assert(UnitOf(1001) == 21001);
}

TEST(TemplateRowsTest, RowKeepsWhatItIsGiven)
{
    ExpectRow(kField, {1,
                       "f",
                       EControl::DropDownList,
                       "",
                       {10, 40, 50, 13},
                       kSorted | kDisabled | kHidden,
                       4,
                       kEntries});
    ExpectRow(Row(2, "g", EControl::Edit, "t", {1, 2, 3, 4}),
              {2, "g", EControl::Edit, "t", {1, 2, 3, 4}, kNoFlags, 0, {}});
}

TEST(TemplateRowsTest, ALabelSharesKeyLayersAndStateWithItsField)
{
    ExpectRow(LabelFor(kField, "&F:", {1, 2, 3, 4}),
              {10001, "f", EControl::Label, "&F:", {1, 2, 3, 4}, kDisabled | kHidden, 4, {}});
}

TEST(TemplateRowsTest, LabelAboveStandsTwoUnitsAboveTheField)
{
    constexpr auto kOneLine = LabelAbove(kField, "&F:");
    ExpectRow(kOneLine[0],
              {10001, "f", EControl::Label, "&F:", {10, 29, 50, 9}, kDisabled | kHidden, 4, {}});
    ExpectRow(kOneLine[1], kField);

    constexpr auto kTwoLines = LabelAbove(kField, "&F:", 2 * kLabelHeight);
    EXPECT_EQ(kTwoLines[0].rect, (TRect{10, 20, 50, 18}));
    EXPECT_EQ(kTwoLines[1].rect, kField.rect);
}

TEST(TemplateRowsTest, EditLineFollowsTheGrid)
{
    constexpr auto kFirst = EditLine(kGrid, 0, 5, "name", "&Name:");
    ExpectRow(kFirst[0], {10005, "name", EControl::Label, "&Name:", {7, 12, 60, 9}});
    ExpectRow(kFirst[1], {5, "name", EControl::Edit, "", {70, 10, 80, 13}});

    constexpr auto kThird = EditLine(kGrid, 2, 6, "step", "&Step:", kReadOnly | kHidden, 3);
    ExpectRow(kThird[0], {10006, "step", EControl::Label, "&Step:", {7, 48, 60, 9}, kHidden, 3});
    ExpectRow(kThird[1], {6, "step", EControl::Edit, "", {70, 46, 80, 13}, kReadOnly | kHidden, 3});
}

TEST(TemplateRowsTest, EditLineWithUnitAddsTheUnitBehind)
{
    constexpr auto kLine =
        EditLineWithUnit(kGrid, 1, 8, "delay", "&Delay:", "seconds", kDisabled | kReadOnly, 2);
    ExpectRow(kLine[0], {10008, "delay", EControl::Label, "&Delay:", {7, 30, 60, 9}, kDisabled, 2});
    ExpectRow(kLine[1],
              {8, "delay", EControl::Edit, "", {70, 28, 80, 13}, kDisabled | kReadOnly, 2});
    ExpectRow(kLine[2],
              {20008, "delay", EControl::Label, "seconds", {155, 30, 30, 9}, kDisabled, 2});
}

TEST(TemplateRowsTest, JoinRowsKeepsTheOrderOfLinesAndRows)
{
    constexpr auto kRows = JoinRows(
        Row(1, "a", EControl::Static, "A", {}), EditLine(kGrid, 0, 2, "b", "B"),
        Row(3, "c", EControl::Static, "C", {}), EditLineWithUnit(kGrid, 1, 4, "d", "D", "s"));
    static_assert(kRows.size() == 7);
    constexpr std::array kIds{1, LabelOf(2), 2, 3, LabelOf(4), 4, UnitOf(4)};
    for (std::size_t n = 0; n < kIds.size(); ++n) {
        EXPECT_EQ(kRows[n].nId, kIds[n]);
    }
    static_assert(JoinRows(Row(9, "z", EControl::Edit, "", {})).size() == 1);
}

TEST(TemplateRowsTest, EveryKindHasAName)
{
    const std::pair<EControl, std::string_view> kNames[] = {
        {EControl::Label, "label"},
        {EControl::Static, "static"},
        {EControl::Group, "group"},
        {EControl::Frame, "frame"},
        {EControl::Edit, "edit"},
        {EControl::MultilineEdit, "multi-line-edit"},
        {EControl::PushButton, "button"},
        {EControl::DefaultButton, "button"},
        {EControl::CheckBox, "check-box"},
        {EControl::RadioButton, "radio"},
        {EControl::DropDownList, "drop-down-list"},
        {EControl::DropDown, "drop-down"},
        {EControl::ListBox, "list-box"},
        {EControl::Tree, "tree"},
        {EControl::Table, "table"},
        {EControl::Tabs, "tabs"},
    };
    for (const auto& [kind, sName] : kNames) {
        EXPECT_EQ(gControlName(kind), sName);
    }
}
} // namespace
