#include "platform/ui/ComboBox.h"

#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

namespace
{
TEST(ComboBoxTest, UserActions)
{
    const TStory kStories[] = {
        {"a completed choice", {"select shape=1"}, {"shape:sel-change", "shape:sel-end-ok"}},
        {"the same entry again runs its handlers again",
         {"select shape=1", "select shape=1"},
         {"shape:sel-change", "shape:sel-end-ok", "shape:sel-change", "shape:sel-end-ok"}},
        {"the mark in the open list", {"move shape=1"}, {"shape:sel-change"}},
        {"moving, then closing with a choice",
         {"move shape=0", "move shape=1", "select shape=1"},
         {"shape:sel-change", "shape:sel-change", "shape:sel-change", "shape:sel-end-ok"}},
        {"typing", {"set colour=pink"}, {"colour:edit-change"}},
        {"typing the same",
         {"set colour=x", "set colour=x"},
         {"colour:edit-change", "colour:edit-change"}},
        {"choosing where typing is possible",
         {"select colour=0"},
         {"colour:sel-change", "colour:sel-end-ok"}},
        {"by its text", {"entry shape=star"}, {"shape:sel-change", "shape:sel-end-ok"}},
        {"beyond the last entry", {"select shape=3"}, {"! unknown entry"}},
        {"a combo's selection can't be taken away", {"select shape=-1"}, {"! unknown entry"}},
        {"typing where nothing can be typed", {"set shape=star"}, {"! wrong kind"}},
        {"a line end", {"set colour=a\nb"}, {"! invalid"}},
    };
    for (const TStory& rStory : kStories)
        gCheckStory(rStory);
}

TEST(ComboBoxTest, HandlersSeeTheNewSelection)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rCombo = dialog.Get<CComboBox>(kShape);
        const auto note = [&] { dialog.Write(rCombo.GetWindowText().GetString()); };
        dialog.React("shape:sel-change", note);
        dialog.React("shape:sel-end-ok", note);
        gAct(dialog, "select shape=2");
        EXPECT_EQ(dialog.TakeLog(), (TLog{"shape:sel-change", "star", "shape:sel-end-ok", "star"}));
        EXPECT_EQ(rCombo.GetCurSel(), 2);
    });
}

TEST(ComboBoxTest, SetCurSelNotifiesNobodyAndClearsBeyondTheLast)
{
    struct TCase {
        int nIndex;
        int nExpected;
        const char* pText;
    };
    constexpr TCase kCases[] = {
        {0, 0, "circle"}, {2, 2, "star"},   {3, -1, ""},  {1, 1, "square"},
        {-1, -1, ""},     {1, 1, "square"}, {-7, -1, ""}, {1000, -1, ""},
    };
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rCombo = dialog.Get<CComboBox>(kShape);
        for (const TCase& rCase : kCases) {
            EXPECT_EQ(rCombo.SetCurSel(rCase.nIndex), rCase.nExpected);
            EXPECT_EQ(rCombo.GetCurSel(), rCase.nExpected);
            EXPECT_EQ(rCombo.GetWindowText(), rCase.pText);
        }
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}

TEST(ComboBoxTest, SetWindowTextWorksOnlyWhereTypingDoes)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rTyped = dialog.Get<CComboBox>(kColour);
        rTyped.SetWindowText("mauve");
        EXPECT_EQ(rTyped.GetWindowText(), "mauve");
        auto& rFixed = dialog.Get<CComboBox>(kShape);
        rFixed.SetCurSel(0);
        rFixed.SetWindowText("star");
        EXPECT_EQ(rFixed.GetWindowText(), "circle");
        EXPECT_EQ(rFixed.GetCurSel(), 0);
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}

TEST(ComboBoxTest, TypingSelectsTheEntryThatIsEqual)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rCombo = dialog.Get<CComboBox>(kColour);
        for (const auto& [pText, nExpected] : std::vector<std::pair<const char*, int>>{
                 {"Green", 1}, {"green", -1}, {"red", 2}, {"re", -1}, {"", -1}}) {
            EXPECT_EQ(rCombo.UserType(pText), EUserResult::Done);
            EXPECT_EQ(rCombo.GetWindowText(), pText);
            EXPECT_EQ(rCombo.GetCurSel(), nExpected) << pText;
        }
    });
}

TEST(ComboBoxTest, ASortedBoxKeepsTheAlphabet)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rCombo = dialog.Get<CComboBox>(kColour);
        const auto entries = [&] {
            return std::vector<CString>(rCombo.GetItems().begin(), rCombo.GetItems().end());
        };
        EXPECT_EQ(entries(), (std::vector<CString>{"blue", "Green", "red"}));
        rCombo.SetCurSel(1);
        EXPECT_EQ(rCombo.AddString("Amber"), 0);
        EXPECT_EQ(rCombo.AddString("green"), 3) << "behind its equal";
        EXPECT_EQ(rCombo.GetCurSel(), 2) << "the selected entry stays selected";
        EXPECT_EQ(rCombo.GetWindowText(), "Green");
        EXPECT_EQ(entries(), (std::vector<CString>{"Amber", "blue", "Green", "green", "red"}));
        // InsertString doesn't sort, as on the platform.
        EXPECT_EQ(rCombo.InsertString(0, "zinc"), 0);
        EXPECT_EQ(rCombo.InsertString(-1, "ash"), 6);
        EXPECT_EQ(rCombo.InsertString(8, "none"), -1);
        EXPECT_EQ(rCombo.GetCount(), 7);
    });
}

TEST(ComboBoxTest, ResetContentEmptiesAll)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rCombo = dialog.Get<CComboBox>(kColour);
        rCombo.SetCurSel(1);
        rCombo.ResetContent();
        EXPECT_EQ(rCombo.GetCount(), 0);
        EXPECT_EQ(rCombo.GetCurSel(), -1);
        EXPECT_EQ(rCombo.GetWindowText(), "");
        EXPECT_EQ(rCombo.GetLBText(0), "");
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}

TEST(ComboBoxTest, FindStringExactFoldsCase)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        const auto& rCombo = dialog.Get<CComboBox>(kShape);
        EXPECT_EQ(rCombo.FindStringExact(-1, "STAR"), 2);
        EXPECT_EQ(rCombo.FindStringExact(-1, "sta"), -1);
        EXPECT_EQ(rCombo.GetLBText(1), "square");
        EXPECT_EQ(rCombo.GetLBText(3), "");
        EXPECT_EQ(rCombo.GetLBText(-1), "");
    });
}
} // namespace
