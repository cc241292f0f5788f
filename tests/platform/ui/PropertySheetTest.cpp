#include "platform/ui/PropertySheet.h"

#include "platform/ui/SampleDialog.h"
#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

namespace
{
constexpr int kTabsId = 1;
constexpr TRect kPageRect{5, 20, 90, 60};
constexpr auto kSheetRows =
    JoinRows(Row(kTabsId, "tabs", EControl::Tabs, "", {5, 5, 90, 15}),
             Row(IDOK, "ok", EControl::DefaultButton, "OK", {5, 85, 50, 14}));
constexpr DialogTemplate kSheetTemplate{"Sheet", {100, 100}, kSheetRows};
constexpr auto kPageRows = JoinRows(Row(1, "edit", EControl::Edit, "", {1, 1, 50, 13}));
constexpr DialogTemplate kFirstTemplate{"First", {90, 60}, kPageRows};
constexpr DialogTemplate kSecondTemplate{"Second", {90, 60}, kPageRows};

/// A page that writes down its initialisation and its comings and goings.
struct TPage : CPropertyPage {
    TPage(const DialogTemplate& rTemplate, TLog& rLog) : CPropertyPage(rTemplate), mrLog(rLog) {}
    TLog& mrLog;
    bool OnInitDialog() override
    {
        Write("init");
        return CPropertyPage::OnInitDialog();
    }
    LRESULT DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
    {
        if (nMessage == WM_SHOWWINDOW)
            Write(wParam != 0 ? "shown" : "hidden");
        return CPropertyPage::DefWindowProc(nMessage, wParam, lParam);
    }
    void Write(const char* pWhat)
    {
        mrLog.push_back(std::string(GetTemplate().pCaption) + ' ' + pWhat);
    }
};

class PropertySheetTest : public testing::Test
{
protected:
    PropertySheetTest()
    {
        mSheet.AddPage(mFirst);
        mSheet.AddPage(mSecond);
    }
    CTabCtrl& Tabs() const { return dynamic_cast<CTabCtrl&>(*mSheet.GetDlgItem(kTabsId)); }

    TLog mLog;
    TPage mFirst{kFirstTemplate, mLog};
    TPage mSecond{kSecondTemplate, mLog};
    CPropertySheet mSheet{kSheetTemplate, kTabsId, kPageRect};
};

TEST_F(PropertySheetTest, StartsWithItsFirstPageAndATabForEach)
{
    EXPECT_EQ(mSheet.GetPageCount(), 2);
    EXPECT_EQ(mSheet.GetActiveIndex(), -1);
    EXPECT_EQ(mSheet.GetActivePage(), nullptr);
    EXPECT_FALSE(mSheet.SetActivePage(0)) << "no window yet";
    gLookInto(mSheet, [this] {
        const auto items = Tabs().GetItems();
        EXPECT_EQ(std::vector<CString>(items.begin(), items.end()),
                  (std::vector<CString>{"First", "Second"}));
        EXPECT_EQ(mSheet.GetActiveIndex(), 0);
        EXPECT_EQ(mSheet.GetActivePage(), &mFirst);
        EXPECT_EQ(mFirst.GetRect(), kPageRect);
        EXPECT_TRUE(mFirst.IsWindowVisible());
        EXPECT_FALSE(mSecond.IsCreated()) << "created when it is first shown";
        EXPECT_EQ(mLog, (TLog{"First init", "First shown"}));
    });
    EXPECT_EQ(mSheet.GetActiveIndex(), -1);
    EXPECT_FALSE(mFirst.IsCreated());
}

TEST_F(PropertySheetTest, TheUserChangesThePage)
{
    gLookInto(mSheet, [this] {
        mLog.clear();
        EXPECT_EQ(gAct(mSheet, "select tabs=1"), "");
        EXPECT_EQ(mSheet.GetActivePage(), &mSecond);
        EXPECT_EQ(mSecond.GetRect(), kPageRect);
        EXPECT_EQ(mLog, (TLog{"First hidden", "Second init", "Second shown"}));
        mLog.clear();
        EXPECT_EQ(gAct(mSheet, "entry tabs=first"), "");
        EXPECT_EQ(mLog, (TLog{"Second hidden", "First shown"}));
        EXPECT_EQ(gAct(mSheet, "select tabs=2"), "unknown entry");
        EXPECT_EQ(gAct(mSheet, "select tabs=-1"), "unknown entry");
    });
}

TEST_F(PropertySheetTest, TheActivePageAgainChangesNothing)
{
    gLookInto(mSheet, [this] {
        mFirst.GetDlgItem(1)->SetFocus();
        mLog.clear();
        EXPECT_TRUE(mSheet.SetActivePage(0));
        EXPECT_EQ(gFocusName(), "edit");
        EXPECT_EQ(gAct(mSheet, "select tabs=0"), "");
        EXPECT_EQ(mLog, TLog{});
    });
}

TEST_F(PropertySheetTest, TheProgramChangesThePage)
{
    gLookInto(mSheet, [this] {
        EXPECT_TRUE(mSheet.SetActivePage(1));
        EXPECT_EQ(Tabs().GetCurSel(), 1);
        EXPECT_FALSE(mSheet.SetActivePage(2));
        EXPECT_FALSE(mSheet.SetActivePage(-1));
        EXPECT_EQ(mSheet.GetActiveIndex(), 1);
    });
}

TEST_F(PropertySheetTest, RunsAgainFromItsFirstPage)
{
    gLookInto(mSheet, [this] { mSheet.SetActivePage(1); });
    mLog.clear();
    gLookInto(mSheet, [this] {
        EXPECT_EQ(mSheet.GetActiveIndex(), 0);
        EXPECT_EQ(Tabs().GetItemCount(), 2);
    });
    EXPECT_EQ(mLog, (TLog{"First init", "First shown"}));
}

TEST_F(PropertySheetTest, TheFieldsAreThoseOfTheActivePage)
{
    gLookInto(mSheet, [this] {
        EXPECT_EQ(gAct(mSheet, "set edit=one"), "");
        gAct(mSheet, "select tabs=1");
        EXPECT_EQ(gAct(mSheet, "set edit=two"), "");
        EXPECT_EQ(mFirst.GetDlgItem(1)->GetWindowText(), "one");
        EXPECT_EQ(mSecond.GetDlgItem(1)->GetWindowText(), "two");
    });
}

TEST_F(PropertySheetTest, ASheetWithoutPagesIsADialog)
{
    CPropertySheet empty(kSheetTemplate, kTabsId, kPageRect);
    HeadlessDesktop desktop;
    EXPECT_EQ(gRunTurns(desktop, empty, {[](CDialog& r) { gAct(r, "click ok"); }}), IDOK);
}

TEST(PropertyPageTest, KeepsTheValuesOfItsDescriptor)
{
    const CPropertyPage plain(kFirstTemplate);
    EXPECT_EQ(plain.GetCaptionId(), 0U);
    EXPECT_EQ(plain.GetDescriptorSize(), 104U);
    const CPropertyPage other(kFirstTemplate, 7, 40);
    EXPECT_EQ(other.GetCaptionId(), 7U);
    EXPECT_EQ(other.GetDescriptorSize(), 40U);
}

TEST(TabCtrlTest, Operations)
{
    gCheckStory({"a tab again",
                 {"select views=1", "select views=1"},
                 {"views:sel-change", "views:sel-change"}});
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rTabs = dialog.Get<CTabCtrl>(kViews);
        EXPECT_EQ(rTabs.GetCurSel(), 0) << "the first one became the selected one";
        EXPECT_EQ(rTabs.AddItem("Four"), 3);
        EXPECT_EQ(rTabs.GetCurSel(), 0);
        EXPECT_EQ(rTabs.SetCurSel(3), 3);
        EXPECT_EQ(rTabs.SetCurSel(4), -1);
        EXPECT_EQ(rTabs.GetItemCount(), 4);
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}
} // namespace
