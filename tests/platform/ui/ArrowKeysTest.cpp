#include "platform/headless/TreePath.h"
#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TreeCtrl.h"

#include <gtest/gtest.h>

namespace
{
TEST(ArrowKeysTest, CheckTheNextRadioButtonAndRunItsHandler)
{
    const TStory kStories[] = {
        {"down", {"choose level=0", "key down"}, {"level#0:clicked", "level#1:clicked"}},
        {"right", {"choose level=0", "key right"}, {"level#0:clicked", "level#1:clicked"}},
        {"up", {"choose level=1", "key up"}, {"level#1:clicked", "level#0:clicked"}},
        {"left", {"choose level=1", "key left"}, {"level#1:clicked", "level#0:clicked"}},
        {"round the end", {"choose level=2", "key down"}, {"level#2:clicked", "level#0:clicked"}},
        {"round the start", {"choose level=0", "key up"}, {"level#0:clicked", "level#2:clicked"}},
        {"from a group without a mark", {"focus level", "key down"}, {"level#1:clicked"}},
    };
    for (const TStory& rStory : kStories)
        gCheckStory(rStory);

    gCheckStory({"passes what can't be checked",
                 {"choose level=0", "key down", "key down", "key up"},
                 {"level#0:clicked", "level#2:clicked", "level#0:clicked", "level#2:clicked"}},
                [](CSampleDialog& r) { r.GetDlgItem(kMiddle)->EnableWindow(false); });
    gCheckStory({"passes what is hidden",
                 {"choose level=0", "key down"},
                 {"level#0:clicked", "level#2:clicked"}},
                [](CSampleDialog& r) { r.GetDlgItem(kMiddle)->ShowWindow(SW_HIDE); });
    gCheckStory(
        {"a button alone", {"choose level=0", "key down"}, {"level#0:clicked", "! wrong kind"}},
        [](CSampleDialog& r) {
            r.GetDlgItem(kMiddle)->EnableWindow(false);
            r.GetDlgItem(kHigh)->EnableWindow(false);
        });
}

TEST(ArrowKeysTest, TheFocusGoesWithTheMark)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        gTellStory(dialog, {"choose level=0", "key down"});
        EXPECT_EQ(gFocusName(), "level#1");
        EXPECT_EQ(dialog.GetCheckedRadioButton(kLow, kHigh), kMiddle);
    });
}

TEST(ArrowKeysTest, ChooseTheNextEntryOfACombo)
{
    const TLog kChosen{"shape:sel-change", "shape:sel-end-ok"};
    const TStory kStories[] = {
        {"down from none", {"focus shape", "key down"}, kChosen},
        {"up from none", {"focus shape", "key up"}, kChosen},
        {"a typed combo keeps left and right for its text",
         {"focus colour", "key right", "key left"},
         {"! wrong kind", "! wrong kind"}},
    };
    for (const TStory& rStory : kStories)
        gCheckStory(rStory);

    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rCombo = dialog.Get<CComboBox>(kShape);
        gAct(dialog, "focus shape");
        for (const auto& [sKey, nExpected] : std::vector<std::pair<std::string, int>>{
                 {"down", 0}, {"down", 1}, {"right", 2}, {"left", 1}, {"up", 0}}) {
            EXPECT_EQ(gAct(dialog, "key " + sKey), "");
            EXPECT_EQ(rCombo.GetCurSel(), nExpected);
            EXPECT_EQ(dialog.TakeLog(), kChosen);
        }
    });
}

TEST(ArrowKeysTest, AtAnEndNothingIsChosenAgain)
{
    const TStory kStories[] = {
        {"combo, last", {"select shape=2", "key down"}, {"shape:sel-change", "shape:sel-end-ok"}},
        {"combo, first", {"select shape=0", "key up"}, {"shape:sel-change", "shape:sel-end-ok"}},
        {"list, last", {"select fruit=2", "key down"}, {"fruit:sel-change"}},
        {"list, first", {"select fruit=0", "key up"}, {"fruit:sel-change"}},
        {"table, last", {"select cells=2", "key down"}, {"cells:sel-change"}},
        {"tabs, last", {"select views=2", "key right"}, {"views:sel-change"}},
        {"tree, last", {"path places=C", "key down"}, {"places:sel-change"}},
        {"tree, first", {"path places=A", "key up"}, {"places:sel-change"}},
    };
    for (const TStory& rStory : kStories)
        gCheckStory(rStory);
}

TEST(ArrowKeysTest, NothingIsThereToChoose)
{
    for (const char* pKey : {"key down", "key up", "key left", "key right"}) {
        for (const char* pField : {"shape", "fruit", "cells", "places"}) {
            gCheckStory({pField, {std::string("focus ") + pField, pKey}, {"! wrong kind"}},
                        [](CSampleDialog& r) {
                            r.Get<CComboBox>(kShape).ResetContent();
                            r.Get<CListBox>(kFruit).ResetContent();
                            r.Get<CListCtrl>(kCells).DeleteAllItems();
                            r.Get<CTreeCtrl>(kPlaces).DeleteAllItems();
                        });
        }
        for (const char* pField : {"name", "notes", "again", "press"})
            gCheckStory({pField, {std::string("focus ") + pField, pKey}, {"! wrong kind"}});
    }
}

TEST(ArrowKeysTest, WalkListTableAndTabs)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        gAct(dialog, "focus fruit");
        gAct(dialog, "key down");
        gAct(dialog, "key down");
        EXPECT_EQ(dialog.Get<CListBox>(kFruit).GetCurSel(), 1);
        gAct(dialog, "key up");
        EXPECT_EQ(dialog.Get<CListBox>(kFruit).GetCurSel(), 0);
        gAct(dialog, "focus cells");
        gAct(dialog, "key down");
        EXPECT_EQ(dialog.Get<CListCtrl>(kCells).GetSelectedRow(), 0);
        gAct(dialog, "focus views");
        gAct(dialog, "key right");
        EXPECT_EQ(dialog.Get<CTabCtrl>(kViews).GetCurSel(), 1);
        EXPECT_EQ(dialog.TakeLog(),
                  (TLog{"fruit:sel-change", "fruit:sel-change", "fruit:sel-change",
                        "cells:sel-change", "views:sel-change"}));
    });
}

TEST(ArrowKeysTest, WalkTheTree)
{
    struct TCase {
        const char* pKey;
        const char* pSelected;
        bool bOpenA;
    };
    constexpr TCase kCases[] = {
        {"down", "A", false},                         // none was selected
        {"right", "A", true},                         // opens
        {"right", "A/A1", true},                      // into it
        {"right", "A/A1", true},                      // a leaf
        {"down", "A/A2", true},  {"down", "B", true}, // A2 is closed
        {"up", "A/A2", true},    {"left", "A", true}, // to the parent
        {"left", "A", false},                         // closes
        {"left", "A", false},                         // a root has no parent
        {"up", "A", false},
    };
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rTree = dialog.Get<CTreeCtrl>(kPlaces);
        gAct(dialog, "focus places");
        for (const TCase& rCase : kCases) {
            SCOPED_TRACE(rCase.pKey);
            gAct(dialog, std::string("key ") + rCase.pKey);
            EXPECT_EQ(gTreePathOf(rTree, rTree.GetSelectedItem()), rCase.pSelected);
            EXPECT_EQ(rTree.IsExpanded(rTree.GetRootItem()), rCase.bOpenA);
        }
        EXPECT_EQ(dialog.TakeLog(), TLog(6, "places:sel-change"));
    });
}

TEST(ArrowKeysTest, InATreeWithoutASelectionSidewaysMeansNothing)
{
    const TStory kStories[] = {
        {"left", {"focus places", "key left"}, {"! wrong kind"}},
        {"right", {"focus places", "key right"}, {"! wrong kind"}},
        {"left at a closed root",
         {"path places=B", "key left"},
         {"places:sel-change", "! wrong kind"}},
    };
    for (const TStory& rStory : kStories)
        gCheckStory(rStory);
}
} // namespace
