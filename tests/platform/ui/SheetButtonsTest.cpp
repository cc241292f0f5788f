#include "platform/ui/LogDialog.h"
#include "platform/ui/ResizeDialog.h"
#include "platform/ui/SheetTemplate.h"
#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

// The standard sheet: its buttons, its title, and pages that follow its size.

namespace
{
constexpr TSize kSize{240, 120};
constexpr auto kSheetRows = SheetRows(kSize, {});
constexpr DialogTemplate kSheet{"Sheet", kSize, kSheetRows, "", true};
constexpr auto kPageRows = JoinRows(Row(1, "edit", EControl::Edit, "", {0, 0, 50, 13}));
constexpr DialogTemplate kPage{"Page", {60, 40}, kPageRows};

/// A page whose edit fills it.
class CFullPage : public CXTPResizePropertyPage
{
public:
    CFullPage() : CXTPResizePropertyPage(kPage) {}
    bool OnInitDialog() override
    {
        SetResize(1, kAnchorTopLeft, kAnchorBottomRight);
        return CXTPResizePropertyPage::OnInitDialog();
    }
    LRESULT DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
    {
        if (nMessage == WM_SIZE)
            mSizes.push_back(wParam);
        return CXTPResizePropertyPage::DefWindowProc(nMessage, wParam, lParam);
    }
    std::vector<WPARAM> mSizes;
};

class SheetButtonsTest : public testing::Test
{
protected:
    SheetButtonsTest()
    {
        mSheet.AddPage(mFirst);
        mSheet.AddPage(mSecond);
    }
    bool IsEnabled(int nId) const { return mSheet.GetDlgItem(nId)->IsWindowEnabled(); }

    CFullPage mFirst, mSecond;
    CXTPResizePropertySheet mSheet{kSheet, kSheetTabsId, SheetPageRect(kSize)};
};

TEST_F(SheetButtonsTest, StandardLabelsInTabOrder)
{
    gLookInto(mSheet, [&] {
        const std::vector<std::pair<int, const char*>> kButtons = {
            {IDOK, "OK"}, {IDCANCEL, "Cancel"}, {ID_APPLY_NOW, "&Apply"}, {IDHELP, "Help"}};
        int nBefore = 0;
        for (const auto& [nId, pLabel] : kButtons) {
            EXPECT_EQ(mSheet.GetDlgItem(nId)->GetWindowText(), pLabel);
            EXPECT_GT(mSheet.GetDlgItem(nId)->GetRect().x, nBefore) << "from left to right";
            nBefore = mSheet.GetDlgItem(nId)->GetRect().x;
        }
        EXPECT_EQ(mSheet.GetDlgItem(IDHELP)->GetRect().Right(), kSize.cx - kSheetMargin);
        EXPECT_FALSE(IsEnabled(ID_APPLY_NOW)) << "nothing has changed yet";
    });
}

TEST_F(SheetButtonsTest, HelpIsShownForTheMarkOfTheSheetOrOfAPage)
{
    struct TCase {
        const char* pName;
        bool bSheet, bFirst, bSecond;
        bool bShown, bEnabledOnFirst, bEnabledOnSecond;
    };
    const TCase kCases[] = {
        {"none", false, false, false, false, false, false},
        {"the sheet alone", true, false, false, true, false, false},
        {"the first page", false, true, false, true, true, false},
        {"the second page", false, false, true, true, false, true},
        {"all", true, true, true, true, true, true},
    };
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        CFullPage first, second;
        CXTPResizePropertySheet sheet(kSheet, kSheetTabsId, SheetPageRect(kSize));
        sheet.AddPage(first);
        sheet.AddPage(second);
        if (rCase.bSheet)
            sheet.SetHasHelp();
        if (rCase.bFirst)
            first.SetHasHelp();
        if (rCase.bSecond)
            second.SetHasHelp();
        gLookInto(sheet, [&] {
            const CWnd& rHelp = *sheet.GetDlgItem(IDHELP);
            EXPECT_EQ(rHelp.IsShown(), rCase.bShown);
            EXPECT_EQ(rHelp.IsWindowEnabled(), rCase.bEnabledOnFirst);
            sheet.SetActivePage(1);
            EXPECT_EQ(rHelp.IsWindowEnabled(), rCase.bEnabledOnSecond);
        });
    }
}

TEST_F(SheetButtonsTest, TheTitleIsTheTemplatesOrTheOneGiven)
{
    gLookInto(mSheet, [&] { EXPECT_EQ(mSheet.GetWindowText(), "Sheet"); });
    mSheet.SetTitle("Title: it");
    gLookInto(mSheet, [&] { EXPECT_EQ(mSheet.GetWindowText(), "Title: it"); });
}

TEST_F(SheetButtonsTest, ThePageFollowsTheSheet)
{
    gLookInto(mSheet, [&] {
        const TRect atFirst = SheetPageRect(kSize);
        EXPECT_EQ(mFirst.GetRect(), atFirst);
        EXPECT_EQ(mFirst.GetDlgItem(1)->GetRect(), (TRect{0, 0, atFirst.w - 10, atFirst.h - 27}))
            << "as much smaller than its page as in the template";
        mSheet.UserSize(SIZE_RESTORED, {kSize.cx + 30, kSize.cy + 20});
        EXPECT_EQ(mFirst.GetRect(), (TRect{atFirst.x, atFirst.y, atFirst.w + 30, atFirst.h + 20}));
        mSheet.SetActivePage(1);
        EXPECT_EQ(mSecond.GetRect(), mFirst.GetRect())
            << "shown for the first time, in the new size";
        mSheet.UserSize(SIZE_RESTORED, kSize);
        mSheet.SetActivePage(0);
        EXPECT_EQ(mFirst.GetRect(), atFirst) << "it follows when it is shown again";
    });
}

TEST_F(SheetButtonsTest, ThePageHearsOfEachSize)
{
    gLookInto(mSheet, [&] {
        mFirst.mSizes.clear();
        mSheet.UserSize(SIZE_RESTORED, {kSize.cx + 1, kSize.cy});
        mSheet.UserSize(SIZE_RESTORED, {kSize.cx + 1, kSize.cy});
        mSheet.UserSize(SIZE_MINIMIZED, {});
        EXPECT_EQ(mFirst.mSizes,
                  (std::vector<WPARAM>{SIZE_RESTORED, SIZE_RESTORED, SIZE_MINIMIZED}));
    });
}

TEST_F(SheetButtonsTest, TabsChangeTheirTexts)
{
    gLookInto(mSheet, [&] {
        auto& rTabs = dynamic_cast<CTabCtrl&>(*mSheet.GetDlgItem(kSheetTabsId));
        EXPECT_TRUE(rTabs.SetItemText(1, "Other"));
        EXPECT_FALSE(rTabs.SetItemText(2, "None"));
        EXPECT_FALSE(rTabs.SetItemText(-1, "None"));
        EXPECT_EQ(rTabs.GetItems()[0], "Page");
        EXPECT_EQ(rTabs.GetItems()[1], "Other");
    });
}
} // namespace
