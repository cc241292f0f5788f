#include "platform/ui/Button.h"
#include "platform/ui/Edit.h"
#include "platform/ui/SampleDialog.h"
#include "qt/Player.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <stdexcept>

namespace
{
QMessageBox* FrontBox()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

// --- message boxes

struct TBoxCase {
    const char* pName;
    UINT nFlags;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
    std::vector<std::string> inputs;
    int nResult;
};

const TBoxCase kBoxCases[] = {
    {"information",
     MB_OK | MB_ICONINFORMATION,
     QMessageBox::Information,
     QMessageBox::Ok,
     {"press Return"},
     IDOK},
    {"warning",
     MB_OK | MB_ICONEXCLAMATION,
     QMessageBox::Warning,
     QMessageBox::Ok,
     {"press Space"},
     IDOK},
    {"plain", MB_OK, QMessageBox::NoIcon, QMessageBox::Ok, {"press Escape"}, IDOK},
    {"yes",
     MB_YESNO | MB_ICONQUESTION,
     QMessageBox::Question,
     QMessageBox::Yes | QMessageBox::No,
     {"press Return"},
     IDYES},
    {"no",
     MB_YESNO | MB_ICONQUESTION,
     QMessageBox::Question,
     QMessageBox::Yes | QMessageBox::No,
     {"press Tab", "press Return"},
     IDNO},
    {"no by its mnemonic",
     MB_YESNO | MB_ICONEXCLAMATION,
     QMessageBox::Warning,
     QMessageBox::Yes | QMessageBox::No,
     {"press Alt+N"},
     IDNO},
    {"Escape is no answer",
     MB_YESNO,
     QMessageBox::NoIcon,
     QMessageBox::Yes | QMessageBox::No,
     {"press Escape", "press Alt+Y"},
     IDYES},
};

TEST(Desktop, BoxesAskAndTell)
{
    for (const TBoxCase& rCase : kBoxCases) {
        SCOPED_TRACE(rCase.pName);
        CTestDesktop desktop;
        CPlayer player;
        player.Then("look", [&rCase] {
            const QMessageBox* const pBox = FrontBox();
            ASSERT_TRUE(pBox);
            EXPECT_EQ(pBox->icon(), rCase.icon);
            EXPECT_EQ(pBox->standardButtons(), rCase.buttons);
            EXPECT_EQ(pBox->text(), QStringLiteral("a < b & c\nd"));
            EXPECT_EQ(pBox->textFormat(), Qt::PlainText);
            EXPECT_EQ(pBox->windowTitle(), QStringLiteral("Caption"));
        });
        player.Do(rCase.inputs);
        player.Play([&rCase] {
            const TMessageBox box{nullptr, "a < b & c\r\nd", CString("Caption"), rCase.nFlags};
            EXPECT_EQ(gShowMessageBox(box), rCase.nResult);
        });
    }
}

TEST(Desktop, AQuestionStaysWhenItsWindowIsClosed)
{
    CTestDesktop desktop;
    CPlayer player;
    player.Then("close", [] { FrontBox()->close(); });
    player.Then("look", [] { EXPECT_TRUE(FrontBox() && FrontBox()->isVisible()); });
    player.Do({"press Alt+N"});
    player.Play([] { EXPECT_EQ(AfxMessageBox("Sure?", MB_YESNO), IDNO); });
}

TEST(Desktop, ABoxWithoutCaptionHasTheApplicationsName)
{
    CTestDesktop desktop;
    CPlayer player;
    player.Then("look", [] {
        EXPECT_EQ(FrontBox()->windowTitle(), QApplication::applicationDisplayName());
    });
    player.Do({"press Return"}).Play([] { AfxMessageBox("Text"); });
}

TEST(Desktop, ABoxBelongsToItsOwnersWindow)
{
    CTestDesktop desktop;
    CSampleDialog dialog;
    dialog.React("press:clicked",
                 [&] { dialog.GetDlgItem(kPress)->MessageBox("Text", "Caption", MB_OK); });
    CPlayer player;
    player.Do({"click press"});
    player.Then("look", [&] {
        EXPECT_EQ(FrontBox()->windowHandle()->transientParent(), gWidgetOf(dialog)->windowHandle());
        EXPECT_FALSE(FrontBox()->parent());
    });
    player.Do({"press Return"});
    player.Then("look", [&] { EXPECT_EQ(QApplication::activeWindow(), gWidgetOf(dialog)); });
    player.Do({"press Escape"}).Play([&dialog] { dialog.DoModal(); });
}

// --- modal runs

TEST(Desktop, DialogsStandInFrontOfEachOther)
{
    CTestDesktop desktop;
    CSampleDialog outer;
    int nInner = 0;
    outer.React("press:clicked", [&] {
        CSampleDialog inner;
        inner.React("again:clicked", [&inner] { inner.EndDialog(7); });
        nInner = static_cast<int>(inner.DoModal());
    });
    CPlayer player;
    player.Do({"click press", "type inner"});
    player.Then("look", [&] {
        EXPECT_NE(&gFrontDialog(), &outer);
        EXPECT_EQ(gFrontDialog().GetDlgItem(kName)->GetWindowText(), "inner");
        EXPECT_EQ(gWidgetOf(gFrontDialog())->windowHandle()->transientParent(),
                  gWidgetOf(outer)->windowHandle());
        EXPECT_EQ(gWidgetOf(gFrontDialog())->windowModality(), Qt::ApplicationModal);
    });
    player.Do({"click again"});
    player.Then("look", [&] {
        EXPECT_EQ(nInner, 7);
        EXPECT_EQ(QApplication::activeWindow(), gWidgetOf(outer));
        EXPECT_EQ(QApplication::focusWidget(), gFrontWidget("press"));
    });
    player.Do({"press Escape"}).Play([&outer] { EXPECT_EQ(outer.DoModal(), IDCANCEL); });
}

TEST(Desktop, AnOuterDialogThatEndsTakesAllInnerOnesAlong)
{
    CTestDesktop desktop;
    CSampleDialog outer;
    CSampleDialog inner;
    outer.React("press:clicked", [&] { EXPECT_EQ(inner.DoModal(), IDCANCEL); });
    inner.React("press:clicked", [&] { inner.MessageBox("Text", "Caption", MB_YESNO); });
    CPlayer player;
    player.Do({"click press", "click press"});
    player.Then("end from outside", [&outer] { outer.EndDialog(5); });
    player.Play([&outer] { EXPECT_EQ(outer.DoModal(), 5); });
}

TEST(Desktop, ADialogThatEndsInItsBeginningIsNeverShown)
{
    CTestDesktop desktop;
    CSampleDialog dialog;
    bool bShown = true;
    dialog.AtInit([&dialog] {
        dialog.EndDialog(3);
        return true;
    });
    CPlayer player;
    player.Play([&] { EXPECT_EQ(dialog.DoModal(), 3); });
    for (const QWidget* pWindow : QApplication::topLevelWidgets())
        bShown = bShown && pWindow->isVisible();
    EXPECT_TRUE(bShown);
}

TEST(Desktop, AnEndFromOutsideOfAllSlotsIsSeen)
{
    CTestDesktop desktop;
    CSampleDialog dialog;
    QTimer::singleShot(0, qApp, [&dialog] { dialog.EndDialog(4); });
    EXPECT_EQ(dialog.DoModal(), 4);
}

TEST(Desktop, TheEndOfTheApplicationCancels)
{
    CTestDesktop desktop;
    int nResult = 0;
    QTimer::singleShot(0, qApp, [&nResult] {
        CSampleDialog dialog;
        QTimer::singleShot(0, qApp, [] { QCoreApplication::quit(); });
        nResult = dialog.DoModal();
    });
    QApplication::exec();
    EXPECT_EQ(nResult, IDCANCEL);
}

TEST(Desktop, PostedMessagesComeBackThroughTheEventLoop)
{
    CTestDesktop desktop;
    CSampleDialog dialog;
    CPlayer player;
    player.Then("post", [&dialog] {
        dialog.PostMessage(WM_SYSCOMMAND, SC_CLOSE);
        EXPECT_FALSE(dialog.HasEnded());
    });
    player.Play([&dialog] { EXPECT_EQ(dialog.DoModal(), IDCANCEL); });
}

// --- exceptions

TEST(Desktop, AnExceptionOfAHandlerLeavesTheRun)
{
    CTestDesktop desktop;
    CSampleDialog dialog;
    dialog.React("press:clicked", [] { throw std::runtime_error("handler"); });
    CPlayer player;
    player.Do({"click press"});
    player.Play([&dialog] { EXPECT_THROW(dialog.DoModal(), std::runtime_error); });
    EXPECT_FALSE(dialog.IsCreated());
}

class CThrowingDialog : public CSampleDialog
{
public:
    bool PreTranslateMessage(const TMsg&) override { throw std::runtime_error("message"); }
};

TEST(Desktop, AnExceptionPassesThroughInnerRunsAndBoxes)
{
    CTestDesktop desktop;
    CSampleDialog outer;
    CThrowingDialog inner;
    outer.React("press:clicked", [&inner] {
        inner.DoModal();
        ADD_FAILURE() << "the inner run has thrown";
    });
    inner.React("press:clicked", [&inner] {
        inner.PostMessage(WM_APP);
        AfxMessageBox("Text", MB_YESNO);
        ADD_FAILURE() << "the box has thrown";
    });
    CPlayer player;
    player.Do({"click press", "click press"});
    player.Play([&outer] { EXPECT_THROW(outer.DoModal(), std::runtime_error); });
    EXPECT_TRUE(desktop.Get().Thread().mModalRuns.empty());
    EXPECT_EQ(desktop.Get().Thread().mnOpenBoxes, 0);
}

// --- the host's window

class CHost
{
public:
    CHost()
    {
        mpWindow->resize(400, 300);
        mpWindow->show();
    }
    ~CHost() { delete mpWindow; }
    QPointer<QWidget> mpWindow = new QWidget;
};

TEST(Desktop, AWidgetHasOneWindow)
{
    CHost host;
    CWnd* const pWnd = gWindowOf(host.mpWindow);
    EXPECT_TRUE(pWnd);
    EXPECT_EQ(gWindowOf(host.mpWindow), pWnd);
    EXPECT_EQ(gWidgetOf(*pWnd), host.mpWindow);
    EXPECT_EQ(gWindowOf(nullptr), nullptr);
    EXPECT_FALSE(pWnd->IsCreated());
    QWidget other;
    EXPECT_NE(gWindowOf(&other), pWnd);
}

TEST(Desktop, TheHostsWindowOwnsADialog)
{
    CTestDesktop desktop;
    CHost host;
    CLogDialog dialog(kSampleTemplate, gWindowOf(host.mpWindow));
    CPlayer player;
    player.Then("look", [&] {
        EXPECT_EQ(gWidgetOf(dialog)->windowHandle()->transientParent(),
                  host.mpWindow->windowHandle());
        EXPECT_FALSE(gWidgetOf(dialog)->parent());
    });
    player.Do({"press Escape"}).Play([&dialog] { dialog.DoModal(); });
    EXPECT_TRUE(QTest::qWaitForWindowActive(host.mpWindow));
}

TEST(Desktop, AHostThatDeletesItsWindowCancelsTheDialog)
{
    CTestDesktop desktop;
    CHost host;
    CLogDialog dialog(kSampleTemplate, gWindowOf(host.mpWindow));
    CPlayer player;
    player.Then("delete", [&host] { delete host.mpWindow; });
    player.Play([&dialog] { EXPECT_EQ(dialog.DoModal(), IDCANCEL); });
}

TEST(Desktop, AHostThatDeletesItsWindowBehindABoxCancelsBoth)
{
    CTestDesktop desktop;
    CHost host;
    CLogDialog dialog(kSampleTemplate, gWindowOf(host.mpWindow));
    int nAnswer = 0;
    dialog.React("press:clicked",
                 [&] { nAnswer = dialog.MessageBox("Sure?", "Caption", MB_YESNO); });
    CPlayer player;
    player.Do({"click press"});
    player.Then("delete", [&host] { delete host.mpWindow; });
    player.Play([&dialog] { EXPECT_EQ(dialog.DoModal(), IDCANCEL); });
    EXPECT_EQ(nAnswer, IDNO);
}

TEST(Desktop, AHostThatDeletesItsWindowEndsItsBox)
{
    CTestDesktop desktop;
    CHost host;
    CPlayer player;
    player.Then("delete", [&host] { delete host.mpWindow; });
    player.Play([&host] {
        const TMessageBox box{gWindowOf(host.mpWindow), "Sure?", CString("Caption"), MB_YESNO};
        EXPECT_EQ(gShowMessageBox(box), IDNO);
    });
}

TEST(Desktop, WhoeverDeletesTheDialogsOwnWidgetCancelsIt)
{
    CTestDesktop desktop;
    CSampleDialog dialog;
    CPlayer player;
    player.Then("delete", [&dialog] { delete gWidgetOf(dialog); });
    player.Play([&dialog] { EXPECT_EQ(dialog.DoModal(), IDCANCEL); });
}

// --- the rest

TEST(Desktop, ItIsCurrentAsLongAsItLives)
{
    IDesktop* const pBefore = gFindDesktop();
    {
        CTestDesktop desktop;
        EXPECT_EQ(gFindDesktop(), &desktop.Get());
    }
    EXPECT_EQ(gFindDesktop(), pBefore);
}

TEST(Desktop, AWindowFollowsTheFont)
{
    CTestDesktop desktop;
    CSampleDialog dialog;
    const QFont before = QApplication::font();
    QFont larger = before;
    larger.setPointSizeF(before.pointSizeF() + 4);
    QSize size;
    CPlayer player;
    player.Then("larger", [&] {
        size = gWidgetOf(dialog)->size();
        QApplication::setFont(larger);
    });
    player.Then("look", [&] {
        EXPECT_GT(gWidgetOf(dialog)->width(), size.width());
        QApplication::setFont(before);
    });
    player.Then("look", [&] { EXPECT_EQ(gWidgetOf(dialog)->size(), size); });
    player.Do({"press Escape"}).Play([&dialog] { dialog.DoModal(); });
}
} // namespace
