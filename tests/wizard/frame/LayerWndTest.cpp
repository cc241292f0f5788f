#include "wizard/frame/LayerWnd.h"

#include "platform/base/Exceptions.h"
#include "platform/headless/HeadlessDesktop.h"
#include "platform/ui/Edit.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/TemplateRows.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

namespace
{
constexpr auto kPaneRows =
    JoinRows(LabelAbove(Row(1001, "text", EControl::Edit, "", {7, 20, 80, kEditHeight}), "Te&xt:"));
constexpr DialogTemplate kPaneTemplate{"Pane", {120, 90}, kPaneRows};
constexpr auto kFrameRows =
    JoinRows(Row(1, "ok", EControl::PushButton, "OK", {150, 80, 40, 14}, kUnlabelled));
constexpr DialogTemplate kFrameTemplate{"Frame", {200, 100}, kFrameRows};

/// A window with two panes and a plain window in layers; the test runs inside its modal run.
class CLayerTest : public testing::Test
{
protected:
    CLayerTest()
    {
        mLayers.SetParent(&mFrame);
        mLayers.SetOrigin(30, 5);
    }

    template <class TBody> void InModalRun(TBody body)
    {
        mDesktop.SetNextAction([body](CDialog& rDialog) {
            body();
            rDialog.EndDialog(IDOK);
            return true;
        });
        EXPECT_EQ(mFrame.DoModal(), IDOK);
    }

    HeadlessDesktop mDesktop;
    CDialog mFrame{kFrameTemplate};
    CPropertyPage mFirst{kPaneTemplate};
    CPropertyPage mSecond{kPaneTemplate};
    CWnd mPlain;
    CLayerWnd mLayers;
};

TEST_F(CLayerTest, StartsWithoutACurrentWindow)
{
    EXPECT_EQ(mLayers.GetCurrentIndex(), -1);
    EXPECT_EQ(mLayers.GetCurrentWindow(), nullptr);
    EXPECT_EQ(mLayers.FocusCurrentWindow(), nullptr);
}

TEST_F(CLayerTest, AddReturnsTheIndexOfTheNewLayer)
{
    EXPECT_EQ(mLayers.Add(&mFirst), 0);
    EXPECT_EQ(mLayers.Add(&mSecond), 1);
    EXPECT_EQ(mLayers.Add(&mPlain), 2);
}

TEST_F(CLayerTest, WithoutLayersShowingDoesNothing)
{
    mLayers.ShowLayer(0);
    EXPECT_EQ(mLayers.GetCurrentIndex(), -1);
}

TEST_F(CLayerTest, APageIsCreatedOnItsFirstDisplayAndKeptHiddenLater)
{
    mLayers.Add(&mFirst);
    mLayers.Add(&mSecond);
    InModalRun([this] {
        mLayers.ShowLayer(0);
        EXPECT_TRUE(mFirst.IsWindowVisible());
        EXPECT_FALSE(mSecond.IsCreated());
        mFirst.GetDlgItem(1001)->SetWindowText("kept");

        mLayers.ShowLayer(1);
        EXPECT_TRUE(mSecond.IsWindowVisible());
        EXPECT_TRUE(mFirst.IsCreated());
        EXPECT_FALSE(mFirst.IsShown());

        mLayers.ShowLayer(0);
        EXPECT_EQ(mFirst.GetDlgItem(1001)->GetWindowText(), "kept");
        EXPECT_EQ(mLayers.GetCurrentWindow(), &mFirst);
    });
    EXPECT_FALSE(mFirst.IsCreated()) << "a pane lives until its parent's window ends";
}

TEST_F(CLayerTest, APageStandsAtTheOriginWithItsOwnSizeOnTopOfItsSiblings)
{
    mLayers.Add(&mFirst);
    InModalRun([this] {
        mLayers.ShowLayer(0);
        EXPECT_EQ(mFirst.GetRect(), (TRect{30, 5, 120, 90}));
        EXPECT_EQ(mFrame.GetChildren().front(), &mFirst);
    });
}

TEST_F(CLayerTest, AnyOtherWindowFillsTheParentAndTakesTheIndexAsItsId)
{
    mLayers.Add(&mFirst);
    mLayers.Add(&mPlain);
    InModalRun([this] {
        mLayers.ShowLayer(1);
        EXPECT_TRUE(mPlain.IsWindowVisible());
        EXPECT_EQ(mPlain.GetRect(), (TRect{0, 0, 200, 100}));
        EXPECT_EQ(mPlain.GetDlgCtrlID(), 1);
        EXPECT_EQ(mPlain.GetWindowText(), "");
        EXPECT_EQ(mPlain.GetParent(), &mFrame);
        EXPECT_EQ(mFrame.GetChildren().front(), &mPlain);

        mPlain.MoveWindow({9, 9, 50, 40});
        mLayers.ShowLayer(1);
        EXPECT_EQ(mPlain.GetRect(), (TRect{0, 0, 50, 40})) << "put back to 0, 0, not resized";
    });
}

TEST_F(CLayerTest, AnIndexBeyondTheLastHidesTheCurrentWindowAndShowsNone)
{
    mLayers.Add(&mFirst);
    InModalRun([this] {
        mLayers.ShowLayer(0);
        mLayers.ShowLayer(7);
        EXPECT_FALSE(mFirst.IsShown());
        EXPECT_EQ(mLayers.GetCurrentIndex(), 7) << "the index stays out of range";
        EXPECT_THROW(mLayers.GetCurrentWindow(), CInvalidArgException);
        EXPECT_THROW(mLayers.FocusCurrentWindow(), CInvalidArgException);
        EXPECT_THROW(mLayers.ShowLayer(0), CInvalidArgException) << "a later show";
    });
}

TEST_F(CLayerTest, ASecondParentIsIgnored)
{
    CDialog other(kFrameTemplate);
    mLayers.SetParent(&other);
    mLayers.Add(&mFirst);
    InModalRun([this] {
        mLayers.ShowLayer(0);
        EXPECT_EQ(mFirst.GetParent(), &mFrame);
    });
}

TEST_F(CLayerTest, FocusingTheCurrentWindowReturnsTheWindowThatLostTheFocus)
{
    mLayers.Add(&mFirst);
    InModalRun([this] {
        mLayers.ShowLayer(0);
        CWnd* const pButton = mFrame.GetDlgItem(1);
        ASSERT_EQ(CWnd::GetFocus(), pButton);
        EXPECT_EQ(mLayers.FocusCurrentWindow(), pButton);
        EXPECT_EQ(CWnd::GetFocus(), mFirst.GetDlgItem(1001));
    });
}

TEST_F(CLayerTest, ItIsNoWindowAndHasOneVirtualOperationItsDestructor)
{
    class CProbe : public CLayerWnd
    {
    public:
        virtual void First() {}
    };
    static_assert(!std::is_base_of_v<CObject, CLayerWnd>);
    static_assert(std::has_virtual_destructor_v<CLayerWnd>);
    EXPECT_EQ(gVirtualSlot(&CProbe::First), 2U) << "a destructor takes two slots";
}

TEST_F(CLayerTest, ShowingBeforeThereIsAParentIsAnInvalidArgument)
{
    CLayerWnd orphan;
    orphan.Add(&mFirst);
    EXPECT_THROW(orphan.ShowLayer(0), CInvalidArgException);
    EXPECT_EQ(orphan.GetCurrentIndex(), -1);
}
} // namespace
