#include "exports/Quorvawiz.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/SampleDialog.h"
#include "qt/Player.h"
#include "support/WizardRun.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QPointer>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <random>
#include <set>

namespace
{
constexpr int kActions = QUORVAWIZ_LONG_RUNS ? 100'000 : 1'000;

const char* const kKeys[] = {
    "Tab",    "Tab",          "Shift+Tab",   "Up",         "Down",     "Down",   "Left",
    "Right",  "Return",       "Space",       "Home",       "End",      "PgDown", "PgUp",
    "Delete", "Backspace",    "F4",          "Alt+Down",   "Ctrl+A",   "Ctrl+Z", "Ctrl+V",
    "Alt+I",  "Alt+L",        "Alt+M",       "Alt+O",      "Alt+A",    "Alt+P",  "Alt+N",
    "Alt+Y",  "Alt+Z",        "Ctrl+Return", "Shift+Down", "Ctrl+Tab", "*",      "+",
    "-",      "Shift+Return", "Ctrl+Home",
};

const char* const kTexts[] = {"a", "B", "0 27 85", "\xC3\xA9", "x&y", ".", "r", "1"};

/// A user at the real windows who does anything, wildly: keys, clicks of every kind anywhere, the
/// wheel, the clipboard.
class CWildUser
{
public:
    /// `habits`: inputs that this user likes, where a dialog is in front.
    explicit CWildUser(unsigned nSeed, std::vector<std::function<void()>> habits = {})
        : mRandom(nSeed), mHabits(std::move(habits))
    {
    }

    CPlayer::TTurn NextTurn()
    {
        if (mnLeft-- <= 0 || testing::Test::HasFailure())
            return [] { Leave(); };
        return [this] { Act(); };
    }
    bool IsDone() const { return mnLeft <= 0; }

private:
    int Below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(mRandom); }

    /// The innermost window goes; the player asks again until there is none.
    static void Leave()
    {
        gInput(gDesktop().Thread().mnOpenBoxes > 0 ? "press Return" : "press Escape");
    }

    void Act()
    {
        if (gDesktop().Thread().mnOpenBoxes > 0) {
            static const char* const kAnswers[] = {"press Return", "press Y", "press N",
                                                   "press Tab"};
            gInput(kAnswers[Below(std::size(kAnswers))]);
            return;
        }
        if (!mHabits.empty() && Below(5) == 0 && !QApplication::activePopupWidget()) {
            mHabits[static_cast<std::size_t>(Below(static_cast<int>(mHabits.size())))]();
            return;
        }
        switch (Below(8)) {
        case 0:
        case 1:
        case 2:
            gInput(std::string("press ") + kKeys[Below(std::size(kKeys))]);
            break;
        case 3:
            gInput(std::string("type ") + kTexts[Below(std::size(kTexts))]);
            break;
        case 4:
            TurnWheel();
            break;
        case 5:
            if (Below(10) == 0)
                gInput("press Escape");
            else
                QGuiApplication::clipboard()->setText(QStringLiteral("p\nq\r\n1"));
            break;
        default:
            ClickAnywhere();
            break;
        }
    }

    QWidget* FrontWindow() const
    {
        QWidget* const pPopup = QApplication::activePopupWidget();
        return pPopup ? pPopup : gWidgetOf(gFrontDialog());
    }

    QPoint Anywhere(const QWidget& rWidget)
    {
        return {Below(std::max(rWidget.width(), 1)), Below(std::max(rWidget.height(), 1))};
    }

    void ClickAnywhere()
    {
        QWidget& rWindow = *FrontWindow();
        const QPoint position = Anywhere(rWindow);
        constexpr int nApart = 1000;
        const int nKind = Below(12);
        if (nKind == 0)
            QTest::mouseClick(rWindow.windowHandle(), Qt::RightButton, Qt::NoModifier, position);
        else if (nKind == 1)
            QTest::mouseClick(rWindow.windowHandle(), Qt::LeftButton, Qt::ControlModifier,
                              position);
        else if (nKind == 4)
            QTest::mouseClick(rWindow.windowHandle(), Qt::MiddleButton, Qt::NoModifier, position);
        else if (nKind == 2)
            Drag(rWindow, position);
        else
            gClickAt(rWindow, position, nKind == 3);
        QTest::lastMouseTimestamp += nApart;
    }

    void Drag(QWidget& rWindow, const QPoint& rFrom)
    {
        const QPointer<QWindow> pNative = rWindow.windowHandle();
        const QPoint to = Anywhere(rWindow);
        QTest::mousePress(pNative, Qt::LeftButton, Qt::NoModifier, rFrom);
        for (const QPoint& rPlace : {(rFrom + to) / 2, to})
            if (pNative)
                QTest::mouseMove(pNative, rPlace);
        if (pNative)
            QTest::mouseRelease(pNative, Qt::LeftButton, Qt::NoModifier, to);
    }

    void TurnWheel()
    {
        QWidget& rWindow = *FrontWindow();
        const QPoint position = Anywhere(rWindow);
        const int nTurn = Below(2) == 0 ? 120 : -120;
        QWidget* const pTarget = rWindow.childAt(position);
        if (!pTarget)
            return;
        QWheelEvent event(pTarget->mapFrom(&rWindow, position), rWindow.mapToGlobal(position), {},
                          {0, nTurn}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(pTarget, &event);
    }

    std::mt19937 mRandom;
    std::vector<std::function<void()>> mHabits;
    int mnLeft = kActions;
};

/// Lets the user loose until his actions are used up, opening windows anew as he closes them.
void LetLoose(CWildUser& rUser, const std::function<void()>& rOpen)
{
    while (!rUser.IsDone() && !testing::Test::HasFailure()) {
        CPlayer player;
        player.SetMore([&rUser] { return rUser.NextTurn(); });
        player.Play(rOpen);
        EXPECT_TRUE(gDesktop().Thread().mModalRuns.empty());
        EXPECT_EQ(gDesktop().Thread().mnOpenBoxes, 0);
    }
}

/// True unless a dialog of a page stands in front of the wizard.
bool IsWizardInFront()
{
    return &gFrontDialog() == &gOpenWizard();
}

/// Opens the category of a page, or goes to the page if that is open.
void GoOnTo(const char* pCategory, const char* pPage)
{
    if (!IsWizardInFront())
        return;
    auto& rTree = dynamic_cast<QTreeWidget&>(*gWidgetOf(gOpenWizard().GetTree()));
    const auto found = rTree.findItems(QString::fromUtf8(pCategory), Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty());
    if (found.front()->isExpanded())
        gInput(std::string("click tree@") + pPage);
    else
        gInput(std::string("branch tree@") + pCategory);
}

TEST(RandomUser, LeavesTheWizardWhole)
{
    CRememberedBase::ResetAll();
    CTestDesktop desktop;
    CRecordingTarget target;
    CWildUser user(20261120, {[] { GoOnTo("Settings", "Temperature"); },
                              [] { GoOnTo("Settings", "Temperature"); },
                              [] {
                                  if (IsWizardInFront())
                                      gInput("click insert");
                              }});
    LetLoose(user, [&target] { quorvawiz::gInvokeSpiceCommandWizard(nullptr, &target); });
    EXPECT_GT(target.mCommands.size(), 0U);
    CRememberedBase::ResetAll();
}

/// A dialog with every kind of control that opens another one, asks, and changes itself.
class CBusyDialog : public CSampleDialog
{
public:
    explicit CBusyDialog(TLog& rLog, int nDepth = 0)
    {
        ShareLog(rLog);
        React("press:clicked", [&rLog, nDepth] {
            CBusyDialog inner(rLog, nDepth + 1);
            if (nDepth < 2)
                inner.DoModal();
        });
        React("again:clicked", [this] { MessageBox("Sure?", "Busy", MB_YESNO); });
        React("level#2:clicked", [this] { GetDlgItem(kNotes)->EnableWindow(false); });
        React("level#0:clicked", [this] { GetDlgItem(kNotes)->EnableWindow(true); });
        React("fruit:double-clicked", [this] { GetDlgItem(kFruit)->ShowWindow(SW_HIDE); });
        React("views:sel-change", [this] { GetDlgItem(kFruit)->ShowWindow(SW_SHOW); });
        React("name:change",
              [this] { Get<CWnd>(kRemark).SetWindowText(Get<CWnd>(kName).GetWindowText()); });
    }
};

TEST(RandomUser, LeavesEveryKindOfControlWhole)
{
    CTestDesktop desktop;
    TLog log;
    CWildUser user(20261121);
    LetLoose(user, [&log] {
        CBusyDialog dialog(log);
        dialog.DoModal();
    });
    const std::set<std::string> told(log.begin(), log.end());
    for (const char* pLine : {"name:change", "notes:change", "again:clicked", "level#1:clicked",
                              "shape:sel-end-ok", "colour:edit-change", "fruit:sel-change",
                              "places:sel-change", "cells:sel-change", "press:clicked"})
        EXPECT_TRUE(told.contains(pLine)) << pLine << " has never come up";
}
} // namespace
