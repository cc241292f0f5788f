#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>

namespace
{
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

TEST(TemplateRowsTest, AUnitSharesThemToo)
{
    ExpectRow(UnitFor(kField, "s", {1, 2, 3, 4}),
              {20001, "f", EControl::Label, "s", {1, 2, 3, 4}, kDisabled | kHidden, 4, {}});
}

TEST(TemplateRowsTest, JoinRowsKeepsTheOrder)
{
    constexpr auto kRows =
        JoinRows(Row(1, "a", EControl::Static, "A", {}), LabelAbove(kField, "&F:"),
                 Row(3, "c", EControl::Static, "C", {}));
    static_assert(kRows.size() == 4);
    constexpr std::array kIds{1, LabelOf(1), 1, 3};
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
