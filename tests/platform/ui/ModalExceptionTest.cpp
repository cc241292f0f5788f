#include "platform/ui/PropertyPage.h"
#include "platform/ui/RecordingDesktop.h"
#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

#include <stdexcept>

// An exception leaves no run, no window and no peer, and the focus where it was.

namespace
{
/// A desktop that can't run dialogs.
class CBrokenDesktop : public HeadlessDesktop
{
public:
    void RunModal(CDialog&) override { throw std::runtime_error("desktop"); }
};

void ExpectNothingLeft(const CSampleDialog& rDialog)
{
    EXPECT_FALSE(rDialog.IsCreated());
    EXPECT_TRUE(rDialog.GetChildren().empty());
    EXPECT_TRUE(rDialog.HasEnded());
    EXPECT_TRUE(gDesktop().Thread().mModalRuns.empty());
    EXPECT_TRUE(gDesktop().Thread().mPosted.empty());
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST(ModalExceptionTest, OutOfInitDialog)
{
    TLog log;
    CRecordingDesktop desktop(log);
    CSampleDialog dialog;
    dialog.AtInit([&]() -> bool {
        dialog.PostMessage(WM_APP);
        throw std::runtime_error("init");
    });
    EXPECT_THROW(dialog.DoModal(), std::runtime_error);
    ExpectNothingLeft(dialog);
    EXPECT_EQ(std::ranges::count(log, "+press"), 1);
    EXPECT_EQ(std::ranges::count(log, "-press"), 1);
    EXPECT_EQ(log.back(), "-(dialog)");

    dialog.AtInit({});
    EXPECT_EQ(gRunTurns(desktop, dialog, {}), IDCANCEL);
}

TEST(ModalExceptionTest, OutOfAHandler)
{
    HeadlessDesktop desktop;
    CSampleDialog dialog;
    dialog.React("press:clicked", [] { throw std::runtime_error("handler"); });
    desktop.SetNextAction([](CDialog& r) { return gAct(r, "click press").empty(); });
    EXPECT_THROW(dialog.DoModal(), std::runtime_error);
    ExpectNothingLeft(dialog);
}

TEST(ModalExceptionTest, OutOfTheDesktop)
{
    CBrokenDesktop desktop;
    CSampleDialog dialog;
    EXPECT_THROW(dialog.DoModal(), std::runtime_error);
    ExpectNothingLeft(dialog);
}

TEST(ModalExceptionTest, OutOfAnInnerDialogLeavesTheOuter)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    inner.AtInit([]() -> bool { throw std::runtime_error("init"); });
    outer.React("press:clicked", [&] { EXPECT_THROW(inner.DoModal(), std::runtime_error); });
    gRunTurns(desktop, outer,
              {[](CDialog& r) { gAct(r, "click press"); },
               [&](CDialog& r) {
                   EXPECT_EQ(&r, &outer);
                   EXPECT_EQ(CWnd::GetFocus(), outer.GetDlgItem(kPress));
                   EXPECT_FALSE(inner.IsCreated());
                   EXPECT_EQ(gAct(r, "set name=x"), "");
               }});
}

TEST(ModalExceptionTest, ThroughTwoRuns)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    outer.React("press:clicked", [&] { inner.DoModal(); });
    inner.React("press:clicked", [] { throw std::runtime_error("handler"); });
    desktop.SetNextAction([](CDialog& r) { return gAct(r, "click press").empty(); });
    EXPECT_THROW(outer.DoModal(), std::runtime_error);
    ExpectNothingLeft(inner);
    ExpectNothingLeft(outer);
}

TEST(ModalExceptionTest, OutOfTheHandlerThatGetsTheFocusBack)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    outer.LogFocus();
    outer.React("press:clicked", [&] {
        outer.React("press:set-focus", [] { throw std::runtime_error("focus"); });
        EXPECT_THROW(inner.DoModal(), std::runtime_error);
        EXPECT_FALSE(inner.IsCreated());
    });
    gRunTurns(desktop, outer,
              {[](CDialog& r) { gAct(r, "click press"); }, [&](CDialog&) { inner.EndDialog(IDOK); },
               [&](CDialog& r) { EXPECT_EQ(&r, &outer); }});
}

TEST(ModalExceptionTest, TheFirstExceptionCounts)
{
    HeadlessDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    outer.LogFocus();
    inner.AtInit([]() -> bool { throw std::invalid_argument("first"); });
    inner.Exchange([&](CDataExchange*) { inner.SetFocus(); });
    outer.React("press:clicked", [&] {
        outer.React("press:set-focus", [] { throw std::runtime_error("second"); });
        EXPECT_THROW(inner.DoModal(), std::invalid_argument);
    });
    gRunTurns(desktop, outer, {[](CDialog& r) { gAct(r, "click press"); }});
    EXPECT_FALSE(inner.IsCreated());
}

TEST(ModalExceptionTest, OutOfAPanesInitLeavesNoPane)
{
    TLog log;
    CRecordingDesktop desktop(log);
    CSampleDialog dialog;
    CSampleDialog pane;
    gRunTurns(desktop, dialog, {[&](CDialog&) {
                  const auto nChildren = dialog.GetChildren().size();
                  pane.AtInit([]() -> bool { throw std::runtime_error("init"); });
                  EXPECT_THROW(pane.CreatePane(dialog), std::runtime_error);
                  EXPECT_FALSE(pane.IsCreated());
                  EXPECT_EQ(dialog.GetChildren().size(), nChildren);
                  EXPECT_EQ(std::ranges::count(log, "+press"), 2);
                  EXPECT_EQ(std::ranges::count(log, "-press"), 1);

                  pane.AtInit({});
                  EXPECT_TRUE(pane.CreatePane(dialog)) << "and it can be made again";
              }});
}

TEST(ModalExceptionTest, OutOfMakingAPeer)
{
    class CPoorDesktop : public HeadlessDesktop
    {
    public:
        int mnLeft = 3;
        std::unique_ptr<IWindowPeer> MakePeer(CWnd& rWnd) override
        {
            if (mnLeft-- == 0)
                throw std::runtime_error("peer");
            return HeadlessDesktop::MakePeer(rWnd);
        }
    } desktop;
    CSampleDialog dialog;
    EXPECT_THROW(dialog.DoModal(), std::runtime_error);
    ExpectNothingLeft(dialog);
}
} // namespace
