#include "platform/ui/LogDialog.h"
#include "platform/ui/ResizeDialog.h"
#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

// Windows that the user resizes, and controls that follow. The template is 100 by 80.

namespace
{
enum EId { kBody = 10, kLeft, kRight, kFree };

constexpr auto kRows =
    JoinRows(Row(kBody, "body", EControl::Edit, "", {5, 5, 90, 50}),
             Row(kLeft, "left", EControl::PushButton, "Left", {5, 60, 30, 14}),
             Row(kRight, "right", EControl::PushButton, "Right", {65, 60, 30, 14}),
             Row(kFree, "free", EControl::Static, "Free", {40, 60, 20, 9}));
constexpr DialogTemplate kSizable{"Sizable", {100, 80}, kRows, "", true};
constexpr DialogTemplate kFixed{"Fixed", {100, 80}, kRows};

class CSizeDialog : public CXTPResizeDialog
{
public:
    using CXTPResizeDialog::CXTPResizeDialog;
    bool OnInitDialog() override
    {
        SetResize(kBody, kAnchorTopLeft, kAnchorBottomRight);
        SetResize(kLeft, kAnchorBottomLeft, kAnchorBottomLeft);
        SetResize(kRight, kAnchorBottomRight, kAnchorBottomRight);
        SetResize(999, kAnchorBottomRight, kAnchorBottomRight); // there is none
        return CXTPResizeDialog::OnInitDialog();
    }
    std::vector<WPARAM> mSizes; ///< the WM_SIZE that came, in order

protected:
    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kMap[] = {OnMessage<&CSizeDialog::OnSize>(WM_SIZE)};
        return kMap;
    }

private:
    LRESULT OnSize(WPARAM wParam, LPARAM lParam)
    {
        mSizes.push_back(wParam);
        return DefWindowProc(WM_SIZE, wParam, lParam);
    }
};

TEST(ResizeTest, ControlsKeepTheirDistanceToTheirAnchors)
{
    struct TCase {
        TSize asked, size;
        TRect body, left, right, free;
    };
    const TCase kCases[] = {
        {{140, 100},
         {140, 100},
         {5, 5, 130, 70},
         {5, 80, 30, 14},
         {105, 80, 30, 14},
         {40, 60, 20, 9}},
        {{101, 80}, {101, 80}, {5, 5, 91, 50}, {5, 60, 30, 14}, {66, 60, 30, 14}, {40, 60, 20, 9}},
        // Never smaller than the template.
        {{50, 90}, {100, 90}, {5, 5, 90, 60}, {5, 70, 30, 14}, {65, 70, 30, 14}, {40, 60, 20, 9}},
        {{0, -1}, {100, 80}, {5, 5, 90, 50}, {5, 60, 30, 14}, {65, 60, 30, 14}, {40, 60, 20, 9}},
    };
    CSizeDialog dialog(kSizable);
    gLookInto(dialog, [&] {
        for (const TCase& rCase : kCases) {
            EXPECT_EQ(dialog.UserSize(SIZE_RESTORED, rCase.asked), EUserResult::Done);
            EXPECT_EQ(dialog.GetClientRect(), (TRect{0, 0, rCase.size.cx, rCase.size.cy}));
            EXPECT_EQ(dialog.GetDlgItem(kBody)->GetRect(), rCase.body);
            EXPECT_EQ(dialog.GetDlgItem(kLeft)->GetRect(), rCase.left);
            EXPECT_EQ(dialog.GetDlgItem(kRight)->GetRect(), rCase.right);
            EXPECT_EQ(dialog.GetDlgItem(kFree)->GetRect(), rCase.free);
        }
    });
}

TEST(ResizeTest, EachSizeSendsAMessageAndMinimisingKeepsTheSize)
{
    CSizeDialog dialog(kSizable);
    gLookInto(dialog, [&] {
        dialog.UserSize(SIZE_RESTORED, {120, 90});
        dialog.UserSize(SIZE_RESTORED, {120, 90});
        dialog.UserSize(SIZE_MINIMIZED, {0, 0});
        EXPECT_EQ(dialog.GetClientRect(), (TRect{0, 0, 120, 90}));
        EXPECT_EQ(dialog.mSizes,
                  (std::vector<WPARAM>{SIZE_RESTORED, SIZE_RESTORED, SIZE_MINIMIZED}));
    });
}

TEST(ResizeTest, AMoveAloneSendsNone)
{
    CSizeDialog dialog(kSizable);
    gLookInto(dialog, [&] {
        dialog.MoveWindow({7, 8, 100, 80});
        EXPECT_TRUE(dialog.mSizes.empty());
    });
}

TEST(ResizeTest, OnlyASizableWindowInFrontFollowsTheUser)
{
    CSizeDialog fixed(kFixed);
    gLookInto(fixed, [&] {
        EXPECT_EQ(fixed.UserSize(SIZE_RESTORED, {120, 90}), EUserResult::Invalid);
        EXPECT_TRUE(fixed.mSizes.empty());
    });
    CSizeDialog outer(kSizable);
    CSizeDialog inner(kSizable);
    gLookInto(outer, [&] {
        HeadlessDesktop& rDesktop = dynamic_cast<HeadlessDesktop&>(gDesktop());
        gRunTurns(rDesktop, inner, {[&](CDialog&) {
                      EXPECT_EQ(outer.UserSize(SIZE_RESTORED, {120, 90}), EUserResult::Blocked);
                      EXPECT_EQ(inner.UserSize(SIZE_RESTORED, {120, 90}), EUserResult::Done);
                  }});
    });
}

TEST(ResizeTest, RunsAgainFromTheTemplatesSize)
{
    CSizeDialog dialog(kSizable);
    gLookInto(dialog, [&] { dialog.UserSize(SIZE_RESTORED, {140, 100}); });
    gLookInto(dialog, [&] {
        dialog.UserSize(SIZE_RESTORED, {110, 80});
        EXPECT_EQ(dialog.GetDlgItem(kBody)->GetRect(), (TRect{5, 5, 100, 50}));
    });
}

TEST(ResizeTest, PixelsWithoutAScreenAreThoseOfTheStandardFont)
{
    CSizeDialog dialog(kSizable);
    EXPECT_EQ(dialog.GetClientPixels(), (TSize{0, 0})) << "no window yet";
    gLookInto(dialog, [&] {
        EXPECT_EQ(dialog.GetClientPixels(), (TSize{150, 130}));
        EXPECT_EQ(dialog.GetDlgItem(kFree)->GetClientPixels(), (TSize{30, 14}))
            << "cut, not rounded";
    });
}
} // namespace
