#include "platform/ui/ComboBox.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Edit.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/MessagePump.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/RecordingDesktop.h"
#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

#include <memory>

// Windows may end in any order; the sanitizers see whether anything dangles.

namespace
{
struct TWindows {
    std::unique_ptr<CEdit> pMember = std::make_unique<CEdit>();
    std::unique_ptr<CSampleDialog> pPane = std::make_unique<CSampleDialog>();
    std::unique_ptr<CSampleDialog> pInner = std::make_unique<CSampleDialog>();
    std::unique_ptr<CWnd> pPlain = std::make_unique<CWnd>();
};

struct TOrder {
    const char* pName;
    std::vector<std::function<void(TWindows&)>> ends;
};

const std::function<void(TWindows&)> kMember = [](TWindows& r) { r.pMember.reset(); };
const std::function<void(TWindows&)> kPane = [](TWindows& r) { r.pPane.reset(); };
const std::function<void(TWindows&)> kInner = [](TWindows& r) { r.pInner.reset(); };
const std::function<void(TWindows&)> kPlain = [](TWindows& r) { r.pPlain.reset(); };

const TOrder kOrders[] = {
    {"from the inside out", {kMember, kInner, kPane, kPlain}},
    {"from the outside in", {kPlain, kPane, kInner, kMember}},
    {"the inner pane first", {kInner, kMember, kPlain, kPane}},
    {"the pane around the others first", {kPane, kMember, kInner, kPlain}},
    {"none before the dialog", {}},
};

TEST(DestructionTest, AnyOrderIsClean)
{
    for (const TOrder& rOrder : kOrders) {
        for (const bool bInsideRun : {true, false}) {
            SCOPED_TRACE(rOrder.pName);
            TLog log;
            CRecordingDesktop desktop(log);
            CSampleDialog dialog;
            TWindows windows;
            const auto endAll = [&] {
                for (const auto& rEnd : rOrder.ends) {
                    rEnd(windows);
                    gPumpPostedMessages();
                    for (const CWnd* pChild : dialog.GetChildren())
                        EXPECT_TRUE(pChild->IsCreated());
                }
            };
            windows.pPane->Exchange(
                [&](CDataExchange* pDX) { DDX_Control(pDX, kName, *windows.pMember); });
            gRunTurns(desktop, dialog,
                      {[&](CDialog&) {
                           ASSERT_TRUE(windows.pPane->CreatePane(dialog));
                           ASSERT_TRUE(windows.pInner->CreatePane(*windows.pPane));
                           ASSERT_TRUE(windows.pPlain->Create(nullptr, "plain", WS_VISIBLE, {},
                                                              windows.pInner.get(), 5));
                           windows.pPane->ShowWindow(SW_SHOW);
                           windows.pInner->ShowWindow(SW_SHOW);
                           windows.pInner->SetFocus();
                           windows.pMember->SetFocus();
                       },
                       [&](CDialog&) {
                           for (CWnd* pWnd :
                                {static_cast<CWnd*>(windows.pMember.get()),
                                 static_cast<CWnd*>(windows.pPane.get()),
                                 static_cast<CWnd*>(windows.pInner.get()), windows.pPlain.get()})
                               pWnd->PostMessage(WM_APP);
                           if (bInsideRun)
                               endAll();
                       }});
            EXPECT_EQ(CWnd::GetFocus(), nullptr);
            EXPECT_TRUE(desktop.Thread().mPosted.empty());
            if (!bInsideRun)
                endAll();
            // Each peer that was made has gone.
            const auto starting = [&log](char c) {
                return std::ranges::count_if(log, [c](const auto& r) { return r[0] == c; });
            };
            EXPECT_EQ(starting('+'), starting('-'));
        }
    }
}

TEST(DestructionTest, AMemberThatEndsWhileItsDialogRunsIsNoChildAnyMore)
{
    CSampleDialog dialog;
    auto pEdit = std::make_unique<CEdit>();
    dialog.Exchange([&](CDataExchange* pDX) {
        if (pDX->GetMode() == EDataExchange::Bind)
            DDX_Control(pDX, kName, *pEdit);
    });
    gLookInto(dialog, [&] {
        EXPECT_EQ(CWnd::GetFocus(), pEdit.get());
        EXPECT_EQ(dialog.GetLastFocus(), pEdit.get());
        pEdit.reset();
        EXPECT_EQ(CWnd::GetFocus(), nullptr);
        EXPECT_EQ(dialog.GetLastFocus(), nullptr);
        EXPECT_EQ(dialog.GetDlgItem(kName), nullptr);
        EXPECT_EQ(gAct(dialog, "set name=x"), "unknown field");
        EXPECT_EQ(gAct(dialog, "key tab"), "");
    });
}

TEST(DestructionTest, MembersOfADialogEndBeforeIt)
{
    // A derived class's members end before the base that holds their window.
    struct TMembers : CSampleDialog {
        CEdit mEdit;
        CComboBox mCombo;
        CSampleDialog mPane;
        void DoDataExchange(CDataExchange* pDX) override
        {
            DDX_Control(pDX, kName, mEdit);
            DDX_Control(pDX, kShape, mCombo);
        }
    };
    HeadlessDesktop desktop;
    CSampleDialog outer;
    auto pPane = std::make_unique<TMembers>();
    gRunTurns(desktop, outer, {[&](CDialog&) {
                  ASSERT_TRUE(pPane->CreatePane(outer));
                  ASSERT_TRUE(pPane->mPane.CreatePane(*pPane));
                  pPane->mPane.PostMessage(WM_APP);
                  pPane->ShowWindow(SW_SHOW);
                  pPane->SetFocus();
                  pPane.reset();
                  EXPECT_EQ(outer.GetChildren().size(), kSampleTemplate.rows.size());
                  EXPECT_EQ(CWnd::GetFocus(), nullptr);
              }});
}

TEST(DestructionTest, AHandlerMayEndItsOwnControl)
{
    const TStory kStories[] = {
        {"push button", {"click press"}, {"press:clicked"}},
        {"check box", {"click again"}, {"again:clicked"}},
        {"radio button", {"choose level=0"}, {"level#0:clicked"}},
        {"edit", {"set name=x"}, {"name:change"}},
        {"lines", {"set notes=x"}, {"notes:change"}},
        {"combo, at the first of two notifications", {"select shape=1"}, {"shape:sel-change"}},
        {"typed combo", {"set colour=x"}, {"colour:edit-change"}},
        {"list", {"select fruit=1"}, {"fruit:sel-change"}},
        {"tree", {"path places=C/C1"}, {"places:sel-change"}},
        {"table", {"select cells=1"}, {"cells:sel-change"}},
        {"tabs", {"select views=1"}, {"views:sel-change"}},
    };
    for (const TStory& rStory : kStories) {
        gCheckStory(rStory, [&rStory](CSampleDialog& rDialog) {
            const std::string sField =
                rStory.expected[0].substr(0, rStory.expected[0].find_first_of("#:"));
            rDialog.React(rStory.expected[0], [&rDialog, sField] {
                while (CWnd* const pControl = gFindField(rDialog, sField).pControl)
                    pControl->DestroyWindow();
            });
        });
    }
}

TEST(DestructionTest, ADialogMayOutliveItsDesktop)
{
    CSampleDialog dialog;
    {
        HeadlessDesktop desktop;
        gRunTurns(desktop, dialog, {});
    }
    EXPECT_EQ(gFindDesktop(), nullptr);
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}
} // namespace
