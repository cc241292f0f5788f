#include "platform/ui/Button.h"

#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

namespace
{
TEST(ButtonTest, UserActionsNotifyOnceEach)
{
    const TStory kStories[] = {
        {"push", {"click press"}, {"press:clicked"}},
        {"push twice", {"click press", "click press"}, {"press:clicked", "press:clicked"}},
        {"check", {"click again"}, {"again:clicked"}},
        {"check by state", {"check again=1", "check again=0"}, {"again:clicked", "again:clicked"}},
        {"check what is checked", {"check again=1", "check again=1"}, {"again:clicked"}},
        {"leave unchecked", {"check again=0"}, {}},
        {"choose", {"choose level=1"}, {"level#1:clicked"}},
        {"choose what is chosen",
         {"choose level=1", "choose level=1"},
         {"level#1:clicked", "level#1:clicked"}},
        {"choose one after another",
         {"choose level=2", "choose level=0"},
         {"level#2:clicked", "level#0:clicked"}},
        {"a group frame is no button", {"click around"}, {"! wrong kind"}},
    };
    for (const TStory& rStory : kStories)
        gCheckStory(rStory);
}

TEST(ButtonTest, ACheckBoxToggles)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rCheck = dialog.Get<CButton>(kAgain);
        for (const int nExpected : {1, 0, 1}) {
            EXPECT_EQ(rCheck.UserClick(), EUserResult::Done);
            EXPECT_EQ(rCheck.GetCheck(), nExpected);
        }
        EXPECT_EQ(gAct(dialog, "check again=1"), "");
        EXPECT_EQ(rCheck.GetCheck(), 1);
        EXPECT_EQ(gAct(dialog, "check again=0"), "");
        EXPECT_EQ(rCheck.GetCheck(), 0);
    });
}

TEST(ButtonTest, APushButtonKeepsNoState)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        gAct(dialog, "click press");
        EXPECT_EQ(dialog.Get<CButton>(kPress).GetCheck(), 0);
    });
}

TEST(ButtonTest, TheHandlerSeesTheNewState)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        int nSeen = -1;
        dialog.React("again:clicked", [&] { nSeen = dialog.Get<CButton>(kAgain).GetCheck(); });
        dialog.React("level#1:clicked", [&] { nSeen = dialog.GetCheckedRadioButton(kLow, kHigh); });
        gAct(dialog, "click again");
        EXPECT_EQ(nSeen, 1);
        gAct(dialog, "choose level=1");
        EXPECT_EQ(nSeen, kMiddle);
    });
}

TEST(ButtonTest, ChoosingARadioButtonTakesTheOthersMarkAway)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        EXPECT_EQ(dialog.GetCheckedRadioButton(kLow, kHigh), 0);
        for (const int nIndex : {0, 2, 1, 1}) {
            EXPECT_EQ(gAct(dialog, "choose level=" + std::to_string(nIndex)), "");
            for (const int nId : {kLow, kMiddle, kHigh}) {
                EXPECT_EQ(dialog.Get<CButton>(nId).GetCheck(), nId == kLow + nIndex ? 1 : 0);
            }
            EXPECT_EQ(dialog.GetCheckedRadioButton(kLow, kHigh), kLow + nIndex);
        }
        EXPECT_EQ(dialog.Get<CButton>(kAgain).GetCheck(), 0) << "no button of the group";
    });
}

TEST(ButtonTest, TheProgramNotifiesNobody)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.CheckRadioButton(kLow, kHigh, kMiddle);
        dialog.CheckRadioButton(kLow, kHigh, kMiddle);
        dialog.Get<CButton>(kAgain).SetCheck(1);
        dialog.Get<CButton>(kAgain).SetCheck(0);
        dialog.Get<CButton>(kHigh).SetCheck(1);
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}

TEST(ButtonTest, CheckRadioButtonWalksTheIds)
{
    struct TCase {
        int nFirst, nLast, nChecked;
        int nLow, nMiddle, nHigh;
    };
    constexpr TCase kCases[] = {
        {kLow, kHigh, kLow, 1, 0, 0},       {kLow, kHigh, kHigh, 0, 0, 1},
        {kLow, kHigh, 0, 0, 0, 0},      // none of them: all are unchecked
        {kLow, kMiddle, kLow, 1, 0, 1}, // beyond the last id nothing changes
        {kMiddle, kHigh, kMiddle, 0, 1, 0}, {kLow, kLow, kLow, 1, 0, 1},
    };
    for (const TCase& rCase : kCases) {
        CSampleDialog dialog;
        gLookInto(dialog, [&] {
            dialog.Get<CButton>(kHigh).SetCheck(1);
            dialog.CheckRadioButton(rCase.nFirst, rCase.nLast, rCase.nChecked);
            EXPECT_EQ(dialog.Get<CButton>(kLow).GetCheck(), rCase.nLow);
            EXPECT_EQ(dialog.Get<CButton>(kMiddle).GetCheck(), rCase.nMiddle);
            EXPECT_EQ(dialog.Get<CButton>(kHigh).GetCheck(), rCase.nHigh);
        });
    }
}

TEST(ButtonTest, SetCheckOfOneRadioButtonLeavesTheOthers)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.Get<CButton>(kHigh).SetCheck(1);
        dialog.Get<CButton>(kLow).SetCheck(5);
        EXPECT_EQ(dialog.Get<CButton>(kLow).GetCheck(), 1);
        EXPECT_EQ(dialog.Get<CButton>(kHigh).GetCheck(), 1);
        EXPECT_EQ(dialog.GetCheckedRadioButton(kLow, kHigh), kLow) << "the first one";
        EXPECT_EQ(dialog.GetCheckedRadioButton(kMiddle, kHigh), kHigh);
    });
}

TEST(ButtonTest, AGroupIsTheButtonsOfOneKey)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        const std::vector<CButton*> kGroup{
            &dialog.Get<CButton>(kLow), &dialog.Get<CButton>(kMiddle), &dialog.Get<CButton>(kHigh)};
        for (CButton* pButton : kGroup) {
            EXPECT_EQ(pButton->GetRadioGroup(), kGroup);
        }
        EXPECT_TRUE(dialog.Get<CButton>(kAgain).GetRadioGroup().empty());
    });
}
} // namespace
