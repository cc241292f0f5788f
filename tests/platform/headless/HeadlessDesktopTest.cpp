#include "platform/headless/HeadlessDesktop.h"

#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

namespace
{
TEST(HeadlessDesktopTest, IsTheCurrentDesktopWhileItLives)
{
    EXPECT_EQ(gFindDesktop(), nullptr);
    {
        HeadlessDesktop outer;
        EXPECT_EQ(gFindDesktop(), &outer);
        {
            HeadlessDesktop inner;
            EXPECT_EQ(&gDesktop(), &inner);
        }
        EXPECT_EQ(gFindDesktop(), &outer);
    }
    EXPECT_EQ(gFindDesktop(), nullptr);
}

TEST(HeadlessDesktopTest, TheApplicationsBoxHasNeitherOwnerNorCaption)
{
    HeadlessDesktop desktop;
    EXPECT_EQ(AfxMessageBox("one"), IDOK);
    EXPECT_EQ(AfxMessageBox("two", MB_YESNO | MB_ICONQUESTION), IDNO);
    const auto boxes = desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0].box.sText, "one");
    EXPECT_EQ(boxes[0].box.nFlags, MB_OK);
    EXPECT_EQ(boxes[0].box.pOwner, nullptr);
    EXPECT_EQ(boxes[0].sOwnerClass, "");
    EXPECT_EQ(boxes[0].box.sCaption, std::nullopt) << "none: the application's name";
    EXPECT_EQ(boxes[0].nResult, IDOK);
    EXPECT_EQ(boxes[1].box.sText, "two");
    EXPECT_EQ(boxes[1].box.nFlags, MB_YESNO | MB_ICONQUESTION);
    EXPECT_EQ(boxes[1].nResult, IDNO);
    EXPECT_TRUE(desktop.TakeBoxes().empty()) << "each box is told once";
    EXPECT_EQ(desktop.GetApplicationName(), "quorvawiz");
}

TEST(HeadlessDesktopTest, AWindowsBoxHasItsOwnerAndCaption)
{
    HeadlessDesktop desktop;
    CSampleDialog dialog;
    gRunTurns(desktop, dialog, {[&](CDialog&) {
                  EXPECT_EQ(dialog.MessageBox("text", "caption", MB_OK | MB_ICONEXCLAMATION), IDOK);
                  EXPECT_EQ(dialog.MessageBox("text", "", MB_OK), IDOK);
              }});
    const auto boxes = desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0].box.pOwner, &dialog);
    EXPECT_EQ(boxes[0].sOwnerClass, "CSampleDialog");
    EXPECT_EQ(boxes[0].box.sCaption, "caption");
    EXPECT_EQ(boxes[0].box.nFlags, MB_ICONEXCLAMATION);
    EXPECT_EQ(boxes[1].box.sCaption, "") << "an empty caption isn't the application's name";
}

TEST(HeadlessDesktopTest, AnswersQueueAndAreUsedByQuestionsOnly)
{
    HeadlessDesktop desktop;
    const auto ask = [] { return AfxMessageBox("?", MB_YESNO); };
    desktop.Answer(true);
    desktop.Answer(false);
    desktop.Answer(true);
    EXPECT_EQ(ask(), IDYES);
    EXPECT_EQ(AfxMessageBox("no question"), IDOK);
    EXPECT_EQ(ask(), IDNO);
    EXPECT_EQ(ask(), IDYES);
    EXPECT_EQ(ask(), IDNO) << "without an answer a question is answered no";

    desktop.Answer(true);
    desktop.SetAnswers({false, true});
    EXPECT_EQ(ask(), IDNO);
    EXPECT_EQ(ask(), IDYES);
    EXPECT_EQ(ask(), IDNO);
    std::vector<int> results;
    for (const TShownBox& rBox : desktop.TakeBoxes())
        results.push_back(rBox.nResult);
    EXPECT_EQ(results, (std::vector{IDYES, IDOK, IDNO, IDYES, IDNO, IDNO, IDYES, IDNO}));
}

TEST(HeadlessDesktopTest, FileDialogsAreAnsweredFromAQueue)
{
    HeadlessDesktop desktop;
    desktop.AnswerFile({TFileChoice::EEnd::Chosen, "/tmp/a.cir"});
    desktop.AnswerFile({TFileChoice::EEnd::InvalidName, {}});

    TFileDialog dialog;
    dialog.bOpen = false;
    dialog.sFolder = "/tmp";
    dialog.sFileName = "b";
    dialog.sFilter = "All (*.*)|*.*||";
    dialog.sDefaultExtension = "cir";
    dialog.nFlags = OFN_OVERWRITEPROMPT;
    const TFileChoice chosen = gChooseFile(dialog);
    EXPECT_EQ(chosen.end, TFileChoice::EEnd::Chosen);
    EXPECT_EQ(chosen.sPath, "/tmp/a.cir");
    EXPECT_EQ(gChooseFile({}).end, TFileChoice::EEnd::InvalidName);
    const TFileChoice none = gChooseFile({});
    EXPECT_EQ(none.end, TFileChoice::EEnd::Cancelled);
    EXPECT_EQ(none.sPath, "");

    const auto shown = desktop.TakeFileDialogs();
    ASSERT_EQ(shown.size(), 3U);
    EXPECT_FALSE(shown[0].bOpen);
    EXPECT_EQ(shown[0].sFolder, "/tmp");
    EXPECT_EQ(shown[0].sFileName, "b");
    EXPECT_EQ(shown[0].sFilter, "All (*.*)|*.*||");
    EXPECT_EQ(shown[0].sDefaultExtension, "cir");
    EXPECT_EQ(shown[0].nFlags, OFN_OVERWRITEPROMPT);
    EXPECT_TRUE(shown[1].bOpen);
    EXPECT_TRUE(desktop.TakeFileDialogs().empty());
}

TEST(HeadlessDesktopTest, TheProfileIsKeptInMemory)
{
    HeadlessDesktop desktop;
    EXPECT_EQ(desktop.ReadProfile("Section", "Entry"), std::nullopt);
    EXPECT_TRUE(desktop.WriteProfile("Section", "Entry", "1"));
    EXPECT_TRUE(desktop.WriteProfile("Section", "Other", ""));
    EXPECT_EQ(desktop.ReadProfile("Section", "Entry"), "1");
    EXPECT_EQ(desktop.ReadProfile("Section", "Other"), "") << "empty isn't missing";
    EXPECT_EQ(desktop.ReadProfile("Entry", "Section"), std::nullopt);
    EXPECT_TRUE(desktop.WriteProfile("Section", "Entry", "2"));
    EXPECT_EQ(desktop.ReadProfile("Section", "Entry"), "2");
    EXPECT_EQ(HeadlessDesktop().ReadProfile("Section", "Entry"), std::nullopt);
}

TEST(HeadlessDesktopTest, DrawsNothing)
{
    HeadlessDesktop desktop;
    CWnd wnd;
    const auto pPeer = desktop.MakePeer(wnd);
    ASSERT_TRUE(pPeer);
    wnd.SetWindowText("kept");
    pPeer->OnChanged(EAspect::Text);
    EXPECT_EQ(wnd.GetWindowText(), "") << "a window that was never created keeps no text";
}

TEST(HeadlessDesktopTest, EachTurnGoesToTheInnermostDialog)
{
    CSampleDialog outer;
    CSampleDialog inner;
    std::vector<const CDialog*> turns;
    outer.React("press:clicked", [&] { inner.DoModal(); });
    HeadlessDesktop desktop([&](CDialog& rInnermost) {
        turns.push_back(&rInnermost);
        switch (turns.size()) {
        case 1:
            return gAct(rInnermost, "click press").empty();
        case 2:
            return gAct(rInnermost, "click ok").empty();
        default:
            return false;
        }
    });
    EXPECT_EQ(outer.DoModal(), IDCANCEL);
    EXPECT_EQ(turns, (std::vector<const CDialog*>{&outer, &inner, &outer}));
}
} // namespace
