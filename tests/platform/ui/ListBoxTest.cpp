#include "platform/ui/ListBox.h"

#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

namespace
{
TEST(ListBoxTest, UserActions)
{
    const TStory kStories[] = {
        {"select", {"select fruit=1"}, {"fruit:sel-change"}},
        {"select again",
         {"select fruit=1", "select fruit=1"},
         {"fruit:sel-change", "fruit:sel-change"}},
        {"take the selection away",
         {"select fruit=1", "select fruit=-1"},
         {"fruit:sel-change", "fruit:sel-change"}},
        {"by its text", {"entry fruit=banana"}, {"fruit:sel-change"}},
        {"beyond the last", {"select fruit=3"}, {"! unknown entry"}},
        {"below none", {"select fruit=-2"}, {"! unknown entry"}},
        {"an unknown text", {"entry fruit=pear"}, {"! unknown entry"}},
        {"double-click",
         {"select fruit=0", "double-click fruit"},
         {"fruit:sel-change", "fruit:double-clicked"}},
        {"there is nothing to double-click", {"double-click fruit"}, {"! invalid"}},
    };
    for (const TStory& rStory : kStories)
        gCheckStory(rStory);
}

TEST(ListBoxTest, TheProgramNotifiesNobody)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rList = dialog.Get<CListBox>(kFruit);
        EXPECT_EQ(rList.SetCurSel(2), 2);
        EXPECT_EQ(rList.SetCurSel(3), -1);
        EXPECT_EQ(rList.GetCurSel(), -1);
        EXPECT_EQ(rList.SetCurSel(1), 1);
        EXPECT_EQ(rList.AddString("date"), 3);
        EXPECT_EQ(rList.InsertString(0, "almond"), 0);
        EXPECT_EQ(rList.GetCurSel(), 2);
        EXPECT_EQ(rList.GetText(2), "Banana");
        EXPECT_EQ(rList.DeleteString(0), 4);
        EXPECT_EQ(rList.GetCurSel(), 1);
        EXPECT_EQ(rList.DeleteString(1), 3);
        EXPECT_EQ(rList.GetCurSel(), -1);
        EXPECT_EQ(rList.DeleteString(3), -1);
        EXPECT_EQ(rList.DeleteString(-1), -1);
        EXPECT_EQ(rList.InsertString(7, "x"), -1);
        rList.ResetContent();
        EXPECT_EQ(rList.GetCount(), 0);
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}

TEST(ListBoxTest, FindStringExactFoldsCaseAndWraps)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rList = dialog.Get<CListBox>(kFruit);
        rList.AddString("APPLE");
        EXPECT_EQ(rList.FindStringExact(-1, "Apple"), 0);
        EXPECT_EQ(rList.FindStringExact(0, "apple"), 3);
        EXPECT_EQ(rList.FindStringExact(3, "apple"), 0);
        EXPECT_EQ(rList.FindStringExact(1, "BANANA"), 1);
        EXPECT_EQ(rList.FindStringExact(-1, "app"), -1);
    });
}

TEST(ListBoxTest, TheSelectionIsReadByTheHandler)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rList = dialog.Get<CListBox>(kFruit);
        dialog.React("fruit:sel-change", [&] { dialog.Write(std::to_string(rList.GetCurSel())); });
        gTellStory(dialog, {});
        EXPECT_EQ(gTellStory(dialog, {"select fruit=2", "select fruit=-1"}),
                  (TLog{"fruit:sel-change", "2", "fruit:sel-change", "-1"}));
    });
}
} // namespace
