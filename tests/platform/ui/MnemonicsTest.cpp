#include "platform/ui/Mnemonics.h"

#include "platform/ui/Button.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

namespace
{
TEST(MnemonicsTest, IsTheLetterBehindTheFirstSingleAmpersand)
{
    const std::pair<const char*, char> kCases[] = {
        {"&Name:", 'n'}, {"N&ame:", 'a'},  {"Name", 0},      {"", 0},        {"&", 0},
        {"Name&", 0},    {"A && B", 0},    {"A && &B", 'b'}, {"&&&C", 'c'},  {"&&&&", 0},
        {"&A&B", 'a'},   {"&1 of 2", '1'}, {"&n", 'n'},      {"R&&D &&", 0},
    };
    for (const auto& [pText, cExpected] : kCases) {
        EXPECT_EQ(gMnemonicOf(pText), cExpected) << pText;
    }
}

struct TPress {
    const char* pName;
    const char* pStart; ///< the action before
    const char* pKey;
    TLog expected;
    const char* pFocus;
};

void Check(
    const TPress& rPress,
    const std::function<void(CSampleDialog&)>& rPrepare = [](CSampleDialog&) {})
{
    SCOPED_TRACE(rPress.pName);
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        rPrepare(dialog);
        EXPECT_EQ(gTellStory(dialog, {rPress.pStart, rPress.pKey}), rPress.expected);
        EXPECT_EQ(gFocusName(), rPress.pFocus);
    });
}

TEST(MnemonicsTest, ALabelLeadsAndAButtonIsPressed)
{
    const TPress kPresses[] = {
        {"a label leads to its field", "focus memo", "key alt+n", {}, "name"},
        {"in upper case too", "focus memo", "key alt+N", {}, "name"},
        {"another label", "focus memo", "key alt+o", {}, "notes"},
        {"a push button is pressed", "focus memo", "key alt+p", {"press:clicked"}, "press"},
        {"a check box is toggled", "focus memo", "key alt+a", {"again:clicked"}, "again"},
        {"a radio button is chosen", "focus memo", "key alt+m", {"level#1:clicked"}, "level#1"},
        {"a letter that nothing has", "focus memo", "key alt+z", {"! wrong kind"}, "memo"},
        {"a text without an ampersand", "focus memo", "key alt+c", {"! wrong kind"}, "memo"},
    };
    for (const TPress& rPress : kPresses)
        Check(rPress);
}

TEST(MnemonicsTest, WhatCantTakeTheFocusIsNoTarget)
{
    const auto disable = [](int nId) {
        return [nId](CSampleDialog& r) { r.GetDlgItem(nId)->EnableWindow(false); };
    };
    const auto hide = [](int nId) {
        return [nId](CSampleDialog& r) { r.GetDlgItem(nId)->ShowWindow(SW_HIDE); };
    };
    const TPress kName{"name", "focus memo", "key alt+n", {"! wrong kind"}, "memo"};
    Check(kName, disable(::kName));
    Check(kName, hide(::kName));
    Check(kName, hide(LabelOf(::kName)));
    Check(kName, disable(LabelOf(::kName)));
    const TPress kPush{"press", "focus memo", "key alt+p", {"! wrong kind"}, "memo"};
    Check(kPush, disable(kPress));
    Check(kPush, hide(kPress));
}

TEST(MnemonicsTest, TextsThatAreNoLabelsLeadNowhere)
{
    Check({"what the user typed",
           "set memo=&Zebra",
           "key alt+z",
           {"memo:change", "! wrong kind"},
           "memo"});
    Check({"a remark", "focus memo", "key alt+z", {"! wrong kind"}, "memo"},
          [](CSampleDialog& r) { r.GetDlgItem(kRemark)->SetWindowText("&Zebra"); });
}

TEST(MnemonicsTest, ATextThatChangesTakesItsMnemonicAlong)
{
    Check({"new letter", "focus memo", "key alt+z", {}, "name"},
          [](CSampleDialog& r) { r.GetDlgItem(LabelOf(kName))->SetWindowText("&Zebra:"); });
    Check({"old letter", "focus memo", "key alt+n", {"! wrong kind"}, "memo"},
          [](CSampleDialog& r) { r.GetDlgItem(LabelOf(kName))->SetWindowText("&Zebra:"); });
}

TEST(MnemonicsTest, ADuplicateOnlyMovesTheFocusRound)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.GetDlgItem(kAgain)->SetWindowText("&Nothing");
        dialog.GetDlgItem(kPress)->SetWindowText("E&nd");
        dialog.GetDlgItem(kHigh)->SetWindowText("Hig&n");
        gAct(dialog, "focus memo");
        TLog places;
        for (int n = 0; n < 5; ++n) {
            EXPECT_EQ(gAct(dialog, "key alt+n"), "");
            places.push_back(gFocusName());
        }
        EXPECT_EQ(places, (TLog{"name", "again", "level#2", "press", "name"}));
        EXPECT_EQ(dialog.TakeLog(), TLog{});
        EXPECT_EQ(dialog.Get<CButton>(kAgain).GetCheck(), 0);
        EXPECT_EQ(dialog.GetCheckedRadioButton(kLow, kHigh), 0);
        EXPECT_EQ(gMnemonicTargets(dialog, 'n').size(), 4U);
    });
}

// --- labels and groups in front of buttons

enum EGroupId { kKindGroup = 1, kKindA, kKindB, kBoxCheck, kListGroup, kDeadEdit, kLiveEdit };
constexpr auto kGroupRows =
    JoinRows(Row(kKindGroup, "kind-group", EControl::Group, "&Kind", {}),
             Row(kKindA, "kind", EControl::RadioButton, "One", {}, kFirstOfGroup),
             Row(kKindB, "kind", EControl::RadioButton, "Two", {}),
             LabelFor(Row(kBoxCheck, "box", EControl::CheckBox, "", {}), "&Box", {}),
             Row(kBoxCheck, "box", EControl::CheckBox, "", {}),
             LabelFor(Row(kKindA, "kind", EControl::RadioButton, "", {}), "Cho&ice", {}),
             Row(kListGroup, "list-group", EControl::Group, "&List", {}),
             Row(kDeadEdit, "dead", EControl::Edit, "", {}, kDisabled),
             Row(kLiveEdit, "live", EControl::Edit, "", {}));
constexpr DialogTemplate kGroupTemplate{"Groups", {50, 50}, kGroupRows};

struct TGroupPress {
    const char* pName;
    int nChecked;
    const char* pKey;
    const char* pFocus;
};

TEST(MnemonicsTest, ALabelOrGroupNeverPressesWhatItLeadsTo)
{
    constexpr TGroupPress kPresses[] = {
        {"a group leads to its first radio button", 0, "key alt+k", "kind#0"},
        {"or to the checked one", kKindB, "key alt+k", "kind#1"},
        {"a label leads to a group's first button", 0, "key alt+i", "kind#0"},
        {"or to the checked one", kKindB, "key alt+i", "kind#1"},
        {"a label leads to a check box", 0, "key alt+b", "box"},
        {"a group passes by what takes no focus", 0, "key alt+l", "live"},
    };
    for (const TGroupPress& rPress : kPresses) {
        SCOPED_TRACE(rPress.pName);
        CLogDialog dialog(kGroupTemplate);
        gLookInto(dialog, [&] {
            dialog.CheckRadioButton(kKindA, kKindB, rPress.nChecked);
            dialog.GetDlgItem(rPress.nChecked == 0 ? kLiveEdit : kBoxCheck)->SetFocus();
            EXPECT_EQ(gTellStory(dialog, {rPress.pKey}), TLog{});
            EXPECT_EQ(gFocusName(), rPress.pFocus);
            EXPECT_EQ(dialog.GetCheckedRadioButton(kKindA, kKindB), rPress.nChecked);
            EXPECT_EQ(dialog.Get<CButton>(kBoxCheck).GetCheck(), 0);
        });
    }
}

// --- panes

TEST(MnemonicsTest, ReachVisiblePanesOnly)
{
    static constexpr auto kRows = JoinRows(Row(1, "pane-button", EControl::PushButton, "&Zap", {}));
    static constexpr DialogTemplate kTemplate{"Pane", {50, 50}, kRows};
    CSampleDialog dialog;
    CPropertyPage pane(kTemplate);
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        EXPECT_EQ(gAct(dialog, "key alt+z"), "wrong kind");
        pane.ShowWindow(SW_SHOW);
        EXPECT_EQ(gAct(dialog, "key alt+z"), "");
        EXPECT_EQ(gFocusName(), "pane-button");
    });
}
} // namespace
