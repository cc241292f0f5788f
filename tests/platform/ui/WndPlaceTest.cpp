#include "platform/ui/PropertyPage.h"
#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

namespace
{
class WndPlaceTest : public testing::Test
{
protected:
    void In(const std::function<void()>& rLook) { gLookInto(mDialog, rLook); }
    CSampleDialog mDialog;
    CSampleDialog mPane;
    CWnd mPlain;
};

TEST_F(WndPlaceTest, RectanglesAreOfTheParentsClientArea)
{
    In([this] {
        ASSERT_TRUE(mPane.CreatePane(mDialog));
        mPane.MoveWindow({10, 20, 100, 90});
        EXPECT_EQ(mPane.GetRect(), (TRect{10, 20, 100, 90}));
        EXPECT_EQ(mPane.GetClientRect(), (TRect{0, 0, 100, 90}));
        EXPECT_EQ(mPane.GetWindowRect(), (TRect{10, 20, 100, 90}));
        const CWnd& rEdit = *mPane.GetDlgItem(kName);
        EXPECT_EQ(rEdit.GetRect(), (TRect{5, 15, 60, 13}));
        EXPECT_EQ(rEdit.GetWindowRect(), (TRect{15, 35, 60, 13}));
        EXPECT_EQ(mPane.ScreenToClient(rEdit.GetWindowRect()), rEdit.GetRect());
        EXPECT_EQ(mDialog.ScreenToClient(rEdit.GetWindowRect()), rEdit.GetWindowRect());
        EXPECT_EQ(mDialog.GetWindowRect(), (TRect{0, 0, 200, 185}));
    });
}

TEST_F(WndPlaceTest, ATopWindowsOwnPlaceCountsForNothingInside)
{
    In([this] {
        mDialog.MoveWindow({50, 60, 200, 185});
        EXPECT_EQ(mDialog.GetWindowRect(), (TRect{0, 0, 200, 185}));
        EXPECT_EQ(mDialog.GetDlgItem(kName)->GetWindowRect(), (TRect{5, 15, 60, 13}));
    });
}

TEST_F(WndPlaceTest, BringWindowToTopMovesToTheFrontOnly)
{
    In([this] {
        const std::vector<CWnd*> before = mDialog.GetChildren();
        before[3]->BringWindowToTop();
        std::vector<CWnd*> expected = before;
        std::rotate(expected.begin(), expected.begin() + 3, expected.begin() + 4);
        EXPECT_EQ(mDialog.GetChildren(), expected);
        mDialog.BringWindowToTop(); // has no siblings
    });
}

TEST_F(WndPlaceTest, APlainChildIsCreatedAsAsked)
{
    EXPECT_FALSE(mPlain.Create(nullptr, "x", WS_VISIBLE, {}, &mDialog, 5)) << "no parent window";
    EXPECT_FALSE(mPlain.Create(nullptr, "x", WS_VISIBLE, {}, nullptr, 5)) << "no parent";
    In([this] {
        EXPECT_TRUE(mPlain.Create(nullptr, "title", WS_CHILD, {1, 2, 3, 4}, &mDialog, 5));
        EXPECT_EQ(mPlain.GetWindowText(), "title");
        EXPECT_EQ(mPlain.GetRect(), (TRect{1, 2, 3, 4}));
        EXPECT_EQ(mDialog.GetDlgItem(5), &mPlain);
        EXPECT_FALSE(mPlain.IsShown());
        EXPECT_FALSE(mPlain.Create(nullptr, "again", WS_CHILD, {}, &mDialog, 6));
        EXPECT_EQ(mPlain.GetDlgCtrlID(), 5);
        mPlain.DestroyWindow();
        EXPECT_EQ(mDialog.GetDlgItem(5), nullptr);
        EXPECT_TRUE(mPlain.Create("class", "", WS_CHILD | WS_VISIBLE, {}, &mDialog, 6));
        EXPECT_TRUE(mPlain.IsWindowVisible());
    });
    EXPECT_FALSE(mPlain.IsCreated());
}

TEST_F(WndPlaceTest, FamilyRelations)
{
    In([this] {
        ASSERT_TRUE(mPane.CreatePane(mDialog));
        const CWnd& rEdit = *mPane.GetDlgItem(kName);
        EXPECT_EQ(&mPane.GetTopLevel(), &mDialog);
        EXPECT_TRUE(rEdit.IsInside(mPane));
        EXPECT_TRUE(rEdit.IsInside(mDialog));
        EXPECT_TRUE(rEdit.IsInside(rEdit));
        EXPECT_FALSE(mPane.IsInside(rEdit));
        EXPECT_FALSE(mDialog.GetDlgItem(kName)->IsInside(mPane));
        EXPECT_EQ(mDialog.GetDlgItem(424242), nullptr);
    });
}

TEST_F(WndPlaceTest, VisibleAndUsableLookAtTheParents)
{
    In([this] {
        ASSERT_TRUE(mPane.CreatePane(mDialog));
        const CWnd& rEdit = *mPane.GetDlgItem(kName);
        EXPECT_TRUE(rEdit.IsShown());
        EXPECT_FALSE(rEdit.IsWindowVisible());
        EXPECT_FALSE(rEdit.CanTakeFocus());
        mPane.ShowWindow(SW_SHOW);
        EXPECT_TRUE(rEdit.IsWindowVisible());
        EXPECT_TRUE(rEdit.CanTakeFocus());
        mPane.EnableWindow(false);
        EXPECT_TRUE(rEdit.IsWindowEnabled());
        EXPECT_FALSE(rEdit.IsUsable());
        EXPECT_FALSE(rEdit.CanTakeFocus());
    });
}
} // namespace
