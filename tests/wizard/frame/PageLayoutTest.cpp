#include "wizard/frame/PageLayout.h"

#include <gtest/gtest.h>

#include <string_view>

namespace
{
constexpr TColumns kPlain{.nField = 100};
constexpr TColumns kUnits{.nField = 100, .nUnit = 200};
constexpr const char* kEntries[] = {"a", "b"};

struct TPlace {
    int nId;
    TRect rect;
};

template <std::size_t N, std::size_t M>
void ExpectPlaces(const std::array<TControlRow, N>& rRows, const TPlace (&rPlaces)[M])
{
    static_assert(N == M);
    for (std::size_t n = 0; n < N; ++n) {
        SCOPED_TRACE(n);
        EXPECT_EQ(rRows[n].nId, rPlaces[n].nId);
        EXPECT_EQ(rRows[n].rect, rPlaces[n].rect);
    }
}

TEST(PageLayoutTest, LinesStandBelowEachOtherWithTheirFieldsInOneColumn)
{
    ExpectPlaces(PageRows(EditLine(kPlain, 1, "a", "A:"), EditLine(kUnits, 2, "b", "B:", "V"),
                          EditLine(kUnits, 3, "c", "C:"),
                          DropDownLine(kPlain, 4, "d", "D:", kEntries)),
                 {{LabelOf(1), {7, 9, 90, 9}},
                  {1, {100, 7, 142, 13}},
                  {LabelOf(2), {7, 26, 90, 9}},
                  {2, {100, 24, 96, 13}},
                  {UnitOf(2), {200, 26, 42, 9}},
                  {LabelOf(3), {7, 43, 90, 9}},
                  {3, {100, 41, 96, 13}},
                  {LabelOf(4), {7, 60, 90, 9}},
                  {4, {100, 58, 142, 13}}});
}

TEST(PageLayoutTest, WideFieldsHaveTheirLabelAbove)
{
    ExpectPlaces(PageRows(WideEdit(1, "a", "A:"), TextBox(2, "b", "B:", 40),
                          TextBox(3, "c", "C:", 30, 2), NoteLine(4, "d", "D", 2)),
                 {{LabelOf(1), {7, 7, 235, 9}},
                  {1, {7, 18, 235, 13}},
                  {LabelOf(2), {7, 35, 235, 9}},
                  {2, {7, 46, 235, 40}},
                  {LabelOf(3), {7, 90, 235, 18}},
                  {3, {7, 110, 235, 30}},
                  {4, {7, 144, 235, 18}}});
}

TEST(PageLayoutTest, AWideFieldHasRoomForALabelOfSeveralLines)
{
    ExpectPlaces(PageRows(WideEdit(1, "a", "A:", 2), WideEdit(2, "b", "B:")),
                 {{LabelOf(1), {7, 7, 235, 18}},
                  {1, {7, 27, 235, 13}},
                  {LabelOf(2), {7, 44, 235, 9}},
                  {2, {7, 55, 235, 13}}});
}

TEST(PageLayoutTest, ALabelIsALiteralWithoutItsMarker)
{
    EXPECT_EQ(std::string_view(Unmarked("__$$Translatable$$_&Time:")), "&Time:");
}

TEST(PageLayoutTest, AUnitStandsBehindAFieldBelowItsLabelToo)
{
    ExpectPlaces(PageRows(GroupBox(1, "g", "G",
                                   Beside(120, WideEdit(2, "a", "A:", "V", 100),
                                          WideEdit(3, "b", "B:", "deg", 220)))),
                 {{1, {7, 7, 235, 41}},
                  {LabelOf(2), {14, 19, 100, 9}},
                  {2, {14, 30, 82, 13}},
                  {UnitOf(2), {100, 32, 14, 9}},
                  {LabelOf(3), {120, 19, 115, 9}},
                  {3, {120, 30, 96, 13}},
                  {UnitOf(3), {220, 32, 15, 9}}});
}

TEST(PageLayoutTest, TheLargerGapOfTwoNeighboursCounts)
{
    ExpectPlaces(PageRows(RadioLines("r", TChoice{1, "A"}, TChoice{2, "B"}),
                          EditLine(kPlain, 3, "e", "E:"), GroupBox(4, "g", "G", Space(10)),
                          CheckLine(5, "c", "C")),
                 {{1, {7, 7, 235, 12}},
                  {2, {7, 21, 235, 12}},
                  {LabelOf(3), {7, 39, 90, 9}},
                  {3, {100, 37, 142, 13}},
                  {4, {7, 56, 235, 27}},
                  {5, {7, 89, 235, 12}}});
}

TEST(PageLayoutTest, AGroupBoxMovesEdgesInwardsAndLeavesColumnsWhereTheyAre)
{
    ExpectPlaces(PageRows(GroupBox(1, "g", "G",
                                   GroupBox(2, "h", "H", EditLine(kPlain, 3, "a", "A:"),
                                            EditLine(kUnits, 4, "b", "B:", "V")))),
                 {{1, {7, 7, 235, 64}},
                  {2, {14, 19, 221, 47}},
                  {LabelOf(3), {21, 33, 76, 9}},
                  {3, {100, 31, 128, 13}},
                  {LabelOf(4), {21, 50, 76, 9}},
                  {4, {100, 48, 96, 13}},
                  {UnitOf(4), {200, 50, 28, 9}}});
}

TEST(PageLayoutTest, BlocksBesideEachOtherMeetAtTheGivenPlace)
{
    constexpr TColumns kLeft{.nField = 40};
    constexpr TColumns kRight{.nField = 160};
    ExpectPlaces(PageRows(GroupBox(1, "g", "G",
                                   Beside(120, EditLine(kLeft, 2, "a", "A:"),
                                          EditLine(kRight, 3, "b", "B:"))),
                          Beside(120, GroupBox(4, "h", "H", EditLine(kLeft, 5, "c", "C:")),
                                 EditLine(kRight, 6, "d", "D:"))),
                 {{1, {7, 7, 235, 30}},
                  {LabelOf(2), {14, 21, 23, 9}},
                  {2, {40, 19, 74, 13}},
                  {LabelOf(3), {120, 21, 37, 9}},
                  {3, {160, 19, 75, 13}},
                  {4, {7, 43, 107, 30}},
                  {LabelOf(5), {14, 57, 23, 9}},
                  {5, {40, 55, 67, 13}},
                  {LabelOf(6), {120, 45, 37, 9}},
                  {6, {160, 43, 82, 13}}});
}

TEST(PageLayoutTest, BlocksOfTheSameTopTakeTheHeightOfTheHighest)
{
    constexpr auto kRows = PageRows(SameTop(OnLayers(1, Lines(EditLine(kPlain, 1, "a", "A:"))),
                                            OnLayers(2, TextBox(2, "b", "B:", 40))),
                                    At(Row(3, "c", EControl::PushButton, "C", {50, 2, 30, 14})));
    ExpectPlaces(kRows, {{LabelOf(1), {7, 9, 90, 9}},
                         {1, {100, 7, 142, 13}},
                         {LabelOf(2), {7, 7, 235, 9}},
                         {2, {7, 18, 235, 40}},
                         {3, {50, 64, 30, 14}}});
    EXPECT_EQ(kRows[0].nLayers, 1U);
    EXPECT_EQ(kRows[3].nLayers, 2U);
    EXPECT_EQ(kRows[4].nLayers, 0U);
}

TEST(PageLayoutTest, FlagsAreAddedToEveryControlOfABlock)
{
    constexpr auto kRows = PageRows(WithFlags(kHidden, TextBox(1, "a", "A:", 20)));
    EXPECT_EQ(kRows[0].nFlags, kHidden);
    EXPECT_EQ(kRows[1].nFlags, kHidden | kWantReturn);
}

TEST(PageLayoutTest, AGroupBoxWithoutATitleSaysSo)
{
    constexpr auto kRows =
        PageRows(GroupBox(1, "g", "", Space(10)), GroupBox(2, "h", "H", Space(9)));
    EXPECT_EQ(kRows[0].nFlags, kUnlabelled);
    EXPECT_EQ(kRows[1].nFlags, kNoFlags);
}

TEST(PageLayoutTest, TightHalvesTheDistances)
{
    ExpectPlaces(
        PageRows(Tight(EditLine(kPlain, 1, "a", "A:"), EditLine(kPlain, 2, "b", "B:"),
                       GroupBox(3, "g", "G", Space(10)), GroupBox(4, "h", "H", Space(10)))),
        {{LabelOf(1), {7, 9, 90, 9}},
         {1, {100, 7, 142, 13}},
         {LabelOf(2), {7, 24, 90, 9}},
         {2, {100, 22, 142, 13}},
         {3, {7, 38, 235, 27}},
         {4, {7, 68, 235, 27}}});
}

TEST(PageLayoutTest, FramesBesideEachOtherEndTogether)
{
    ExpectPlaces(
        PageRows(Beside(120, GroupBox(1, "g", "G", Space(10)), GroupBox(2, "h", "H", Space(30))),
                 NoteLine(3, "n", "N")),
        {{1, {7, 7, 107, 47}}, {2, {120, 7, 122, 47}}, {3, {7, 60, 235, 9}}});
}

TEST(PageLayoutTest, AGroupBoxIsTheLabelOfABareEdit)
{
    constexpr auto kRows = PageRows(GroupBox(1, "g", "&G", BareEdit(2, "e")));
    ExpectPlaces(kRows, {{1, {7, 7, 235, 30}}, {2, {14, 19, 221, 13}}});
    EXPECT_EQ(kRows[1].nFlags, kUnlabelled);
}

TEST(PageLayoutTest, WhatIsPlacedByHandKeepsToTheEdgesItReaches)
{
    constexpr auto at = [](int nId, const TRect& rRect) {
        return At(Row(nId, "k", EControl::PushButton, "K", rRect));
    };
    ExpectPlaces(PageRows(GroupBox(1, "g", "G",
                                   SameTop(at(2, {7, 0, 20, 14}), at(3, {100, 0, 20, 14}),
                                           at(4, {200, 0, 42, 14}))),
                          LabelledAt(Row(5, "e", EControl::Edit, "", {60, 0, 50, 13}), "E:")),
                 {{1, {7, 7, 235, 31}},
                  {2, {14, 19, 13, 14}},
                  {3, {100, 19, 20, 14}},
                  {4, {200, 19, 35, 14}},
                  {LabelOf(5), {60, 44, 50, 9}},
                  {5, {60, 55, 50, 13}}});
}

TEST(PageLayoutTest, AListHasItsButtonsBesideIt)
{
    constexpr auto kRows =
        PageRows(ListLines(1, "list", 80, {2, "&Add"}, {3, "&Delete"}, {4, "&Clear"}));
    ExpectPlaces(kRows, {{1, {7, 7, 179, 80}},
                         {2, {192, 7, 50, 14}},
                         {3, {192, 25, 50, 14}},
                         {4, {192, 43, 50, 14}}});
    EXPECT_EQ(std::string_view(kRows[1].pKey), "add");
    EXPECT_EQ(std::string_view(kRows[2].pKey), "delete");
    EXPECT_EQ(std::string_view(kRows[3].pKey), "clear");
    EXPECT_EQ(kRows[1].nFlags, kNoFlags);
    EXPECT_EQ(kRows[2].nFlags, kDisabled);
    EXPECT_EQ(kRows[3].nFlags, kDisabled);
}

TEST(PageLayoutTest, AListWithALabelHasAllItsButtonsDisabled)
{
    constexpr auto kRows = PageRows(
        LabelledListLines(1, "list", "&List:", 80, {2, "&Add"}, {3, "&Delete"}, {4, "&Clear"}));
    ExpectPlaces(kRows, {{LabelOf(1), {7, 7, 179, 9}},
                         {1, {7, 18, 179, 80}},
                         {2, {192, 18, 50, 14}},
                         {3, {192, 36, 50, 14}},
                         {4, {192, 54, 50, 14}}});
    EXPECT_EQ(kRows[1].nFlags, kNoFlags) << "its label is its own";
    for (const std::size_t nButton : {2U, 3U, 4U})
        EXPECT_EQ(kRows[nButton].nFlags, kDisabled);
}

TEST(PageLayoutTest, ASecondListHasButtonsWithKeysOfItsOwn)
{
    constexpr auto kRows =
        PageRows(LabelledListLines(1, "list", "&List:", 80, {2, "&Add"}, {3, "&Delete"},
                                   {4, "&Clear"}, {"l-add", "l-delete", "l-clear"}));
    EXPECT_STREQ(kRows[2].pKey, "l-add");
    EXPECT_STREQ(kRows[3].pKey, "l-delete");
    EXPECT_STREQ(kRows[4].pKey, "l-clear");
}

TEST(PageLayoutTest, TheFirstOfTheRadioLinesBeginsTheGroup)
{
    constexpr auto kRows =
        PageRows(RadioLines("r", TChoice{1, "A"}, TChoice{2, "B"}, TChoice{3, "C"}));
    EXPECT_EQ(kRows[0].nFlags, kFirstOfGroup);
    EXPECT_EQ(kRows[1].nFlags, kNoFlags);
    EXPECT_EQ(kRows[2].rect, (TRect{7, 35, 235, 12}));
}

TEST(PageLayoutTest, RowsKeepKindKeyLabelAndEntries)
{
    constexpr auto kRows =
        PageRows(DropDownLine(kPlain, 1, "choice", "&Choice:", kEntries, EControl::DropDown),
                 EditLine(kUnits, 2, "time", "&Time:", "sec"));
    EXPECT_EQ(kRows[1].kind, EControl::DropDown);
    EXPECT_EQ(std::string_view(kRows[1].pKey), "choice");
    EXPECT_EQ(kRows[1].entries.data(), kEntries);
    EXPECT_EQ(std::string_view(kRows[0].pLabel), "&Choice:");
    EXPECT_EQ(std::string_view(kRows[4].pLabel), "sec");
    EXPECT_EQ(kRows[4].kind, EControl::Label);
}
} // namespace
