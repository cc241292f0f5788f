#include "platform/ui/Button.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Edit.h"
#include "platform/ui/RecordingDesktop.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{
constexpr auto kRows = JoinRows(Row(1, "name", EControl::Edit, "", {}),
                                Row(IDOK, "ok", EControl::DefaultButton, "OK", {}));
constexpr DialogTemplate kTemplate{"Modal", {50, 50}, kRows};

const TLog kCreated{"+(dialog)", "+name", "+ok"};
const TLog kDestroyed{"-ok", "-name", "-(dialog)"};

TLog Joined(std::initializer_list<TLog> parts)
{
    TLog all;
    for (const TLog& rPart : parts)
        all.insert(all.end(), rPart.begin(), rPart.end());
    return all;
}

TEST(ModalRunTest, CreateInitFocusShowRunDestroy)
{
    TLog log;
    CRecordingDesktop desktop(log);
    CLogDialog dialog(kTemplate);
    dialog.ShareLog(log);
    dialog.LogFocus();
    dialog.AtInit([&] {
        EXPECT_FALSE(dialog.IsWindowVisible());
        log.emplace_back("init");
        return true;
    });
    EXPECT_EQ(gRunTurns(desktop, dialog, {[&](CDialog&) {
                            log.emplace_back("turn");
                            dialog.EndDialog(42);
                        }}),
              42);
    EXPECT_EQ(log,
              Joined({kCreated,
                      {"init", "name focus", "name:set-focus", "(dialog) visible", "run", "turn"},
                      kDestroyed}));
}

TEST(ModalRunTest, EndedAtInitItIsNeitherShownNorRun)
{
    TLog log;
    CRecordingDesktop desktop(log);
    CLogDialog dialog(kTemplate);
    dialog.AtInit([&] {
        dialog.EndDialog(7);
        return false;
    });
    EXPECT_EQ(dialog.DoModal(), 7);
    EXPECT_EQ(log, Joined({kCreated, kDestroyed}));
    EXPECT_FALSE(dialog.IsCreated());
}

TEST(ModalRunTest, EndedByAPostedMessageItIsNotRun)
{
    struct TEnding : CLogDialog {
        TEnding() : CLogDialog(kTemplate) {}
        LRESULT DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
        {
            if (nMessage == WM_APP)
                EndDialog(9);
            return CLogDialog::DefWindowProc(nMessage, wParam, lParam);
        }
    } dialog;
    TLog log;
    CRecordingDesktop desktop(log);
    dialog.AtInit([&] { return dialog.PostMessage(WM_APP); });
    EXPECT_EQ(dialog.DoModal(), 9);
    EXPECT_EQ(std::ranges::count(log, "run"), 0);
}

TEST(ModalRunTest, TheFirstResultCounts)
{
    HeadlessDesktop desktop;
    CSampleDialog dialog;
    EXPECT_EQ(gRunTurns(desktop, dialog, {[&](CDialog&) {
                            EXPECT_FALSE(dialog.HasEnded());
                            dialog.EndDialog(IDOK);
                            EXPECT_TRUE(dialog.HasEnded());
                            dialog.EndDialog(IDCANCEL);
                        }}),
              IDOK);
}

TEST(ModalRunTest, ADesktopThatReturnsEarlyCountsAsCancel)
{
    HeadlessDesktop desktop;
    CSampleDialog dialog;
    EXPECT_EQ(gRunTurns(desktop, dialog, {}), IDCANCEL);
    EXPECT_EQ(gRunTurns(desktop, dialog, {[](CDialog& r) { gAct(r, "set name=x"); }}), IDCANCEL);
    EXPECT_TRUE(dialog.HasEnded());
}

TEST(ModalRunTest, OKStoresCancelDoesnt)
{
    struct TCase {
        const char* pAction;
        int nResult;
        const char* pStored;
    };
    for (const TCase& rCase :
         {TCase{"click ok", IDOK, "typed"}, TCase{"click cancel", IDCANCEL, "start"},
          TCase{"key escape", IDCANCEL, "start"}, TCase{"key enter", IDOK, "typed"}}) {
        SCOPED_TRACE(rCase.pAction);
        HeadlessDesktop desktop;
        CSampleDialog dialog;
        CString sName = "start";
        dialog.Exchange([&](CDataExchange* pDX) { DDX_Text(pDX, kName, sName); });
        EXPECT_EQ(gRunTurns(desktop, dialog,
                            {[](CDialog& r) { gAct(r, "set name=typed"); },
                             [&](CDialog& r) { EXPECT_EQ(gAct(r, rCase.pAction), ""); }}),
                  rCase.nResult);
        EXPECT_EQ(sName, rCase.pStored);
    }
}

TEST(ModalRunTest, ADestroyedWindowHasNoRunLeft)
{
    HeadlessDesktop desktop;
    CSampleDialog dialog;
    EXPECT_EQ(gRunTurns(desktop, dialog, {[&](CDialog&) {
                            dialog.DestroyWindow();
                            EXPECT_TRUE(dialog.HasEnded());
                        }}),
              IDCANCEL);
    EXPECT_EQ(gRunTurns(desktop, dialog, {[&](CDialog&) { dialog.EndDialog(IDOK); }}), IDOK);
}

TEST(ModalRunTest, RunsAgain)
{
    HeadlessDesktop desktop;
    CSampleDialog dialog;
    for (const int nResult : {IDOK, 5, IDCANCEL}) {
        EXPECT_EQ(gRunTurns(desktop, dialog, {[&](CDialog&) { dialog.EndDialog(nResult); }}),
                  nResult);
    }
}

TEST(ModalRunTest, CantRunTwiceAtOnce)
{
    CSampleDialog dialog;
    CSampleDialog pane;
    gLookInto(dialog, [&] {
        EXPECT_THROW(dialog.DoModal(), std::logic_error);
        ASSERT_TRUE(pane.CreatePane(dialog));
        EXPECT_THROW(pane.DoModal(), std::logic_error);
        EXPECT_FALSE(pane.CreatePane(dialog)) << "it exists already";
        EXPECT_FALSE(dialog.HasEnded());
        EXPECT_EQ(gAct(dialog, "click press"), "");
    });
    EXPECT_FALSE(pane.IsCreated());
    EXPECT_FALSE(pane.CreatePane(dialog)) << "the parent has no window";
}

TEST(ModalRunTest, HasEndedOutsideARun)
{
    CSampleDialog dialog;
    EXPECT_TRUE(dialog.HasEnded());
    CSampleDialog pane;
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        EXPECT_TRUE(pane.HasEnded());
        pane.EndDialog(IDOK);
        EXPECT_FALSE(dialog.HasEnded()) << "a pane ends no run";
    });
}

// --- inner runs

TEST(NestedRunTest, TheFocusReturnsToTheOwnersControl)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    outer.LogFocus();
    outer.React("notes:set-focus", [] {});
    outer.React("press:clicked", [&] { inner.DoModal(); });
    gRunTurns(desktop, outer,
              {[&](CDialog& r) {
                   gAct(r, "focus memo");
                   outer.TakeLog();
                   inner.AtInit([&] { return true; });
               },
               [](CDialog& r) { gAct(r, "click press"); },
               [&](CDialog& r) {
                   EXPECT_EQ(&r, &inner);
                   EXPECT_EQ(CWnd::GetFocus(), inner.GetDlgItem(kName));
                   EXPECT_EQ(outer.TakeLog(), (TLog{"memo:kill-focus", "press:set-focus",
                                                    "press:clicked", "press:kill-focus"}));
                   gAct(r, "click ok");
               },
               [&](CDialog& r) {
                   EXPECT_EQ(&r, &outer);
                   EXPECT_EQ(CWnd::GetFocus(), outer.GetDlgItem(kPress));
                   EXPECT_EQ(outer.TakeLog(), TLog{"press:set-focus"});
               }});
}

TEST(NestedRunTest, AnOwnersControlThatIsGoneHandsTheFocusOn)
{
    struct TCase {
        const char* pName;
        std::function<void(CWnd&)> act;
    };
    for (const TCase& rCase : {TCase{"disabled", [](CWnd& r) { r.EnableWindow(false); }},
                               TCase{"hidden", [](CWnd& r) { r.ShowWindow(SW_HIDE); }}}) {
        SCOPED_TRACE(rCase.pName);
        HeadlessDesktop desktop;
        CSampleDialog outer;
        CSampleDialog inner;
        outer.React("press:clicked", [&] { inner.DoModal(); });
        gRunTurns(desktop, outer,
                  {[](CDialog& r) { gAct(r, "click press"); },
                   [&](CDialog&) {
                       rCase.act(*outer.GetDlgItem(kPress));
                       EXPECT_EQ(CWnd::GetFocus(), inner.GetDlgItem(kName));
                       inner.EndDialog(IDOK);
                   },
                   [&](CDialog&) { EXPECT_EQ(CWnd::GetFocus(), outer.GetDlgItem(kName)); }});
    }
}

TEST(NestedRunTest, AnOwnersControlThatWasDestroyedGetsNothing)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    outer.React("press:clicked", [&] { inner.DoModal(); });
    gRunTurns(desktop, outer,
              {[](CDialog& r) { gAct(r, "click press"); },
               [&](CDialog&) {
                   outer.GetDlgItem(kPress)->DestroyWindow();
                   inner.EndDialog(IDOK);
               },
               [](CDialog&) { EXPECT_EQ(gFocusName(), "(none)"); }});
}

TEST(NestedRunTest, EndingTheOuterEndsTheInnerFirst)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog middle;
    CSampleDialog inner;
    TLog log;
    outer.React("press:clicked", [&] {
        log.push_back("middle " + std::to_string(middle.DoModal()));
        EXPECT_FALSE(middle.IsCreated());
        EXPECT_TRUE(outer.IsCreated());
    });
    middle.React("press:clicked", [&] {
        log.push_back("inner " + std::to_string(inner.DoModal()));
        EXPECT_FALSE(inner.IsCreated());
        EXPECT_TRUE(middle.IsCreated());
        EXPECT_TRUE(middle.HasEnded());
    });
    const TTurn press = [](CDialog& r) { gAct(r, "click press"); };
    const int nResult = gRunTurns(desktop, outer, {press, press, [&](CDialog& r) {
                                                       EXPECT_EQ(&r, &inner);
                                                       outer.EndDialog(5);
                                                       EXPECT_TRUE(inner.HasEnded());
                                                   }});
    log.push_back("outer " + std::to_string(nResult));
    EXPECT_EQ(log, (TLog{"inner 2", "middle 2", "outer 5"}));
}

TEST(NestedRunTest, AnInnerResultThatStandsIsKept)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    int nInner = 0;
    outer.React("press:clicked", [&] { nInner = inner.DoModal(); });
    EXPECT_EQ(gRunTurns(desktop, outer,
                        {[](CDialog& r) { gAct(r, "click press"); },
                         [&](CDialog&) {
                             inner.EndDialog(IDOK);
                             outer.EndDialog(5);
                         }}),
              5);
    EXPECT_EQ(nInner, IDOK);
}

TEST(NestedRunTest, EndingTheInnerLeavesTheOuter)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    outer.React("press:clicked", [&] { inner.DoModal(); });
    gRunTurns(desktop, outer,
              {[](CDialog& r) { gAct(r, "click press"); }, [&](CDialog&) { inner.EndDialog(IDOK); },
               [&](CDialog& r) {
                   EXPECT_EQ(&r, &outer);
                   EXPECT_FALSE(outer.HasEnded());
               }});
}

TEST(NestedRunTest, ADialogMayOpenAnotherAtInit)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    outer.AtInit([&] {
        EXPECT_EQ(inner.DoModal(), IDOK);
        return true;
    });
    gRunTurns(desktop, outer,
              {[&](CDialog& r) {
                   EXPECT_EQ(&r, &inner);
                   inner.EndDialog(IDOK);
               },
               [&](CDialog& r) {
                   EXPECT_EQ(&r, &outer);
                   EXPECT_EQ(CWnd::GetFocus(), outer.GetDlgItem(kName));
               }});
}

TEST(NestedRunTest, TheOwnerIsKeptAsGiven)
{
    CSampleDialog outer;
    CLogDialog inner(kTemplate, &outer);
    EXPECT_EQ(inner.GetOwner(), &outer);
    EXPECT_EQ(inner.GetParent(), nullptr);
    EXPECT_EQ(outer.GetOwner(), nullptr);
    EXPECT_EQ(&inner.GetTemplate(), &kTemplate);
}
} // namespace
