#include "qt/Player.h"

#include "platform/ui/Dialog.h"
#include "qt/CompareWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QThread>
#include <QTimerEvent>
#include <utility>

namespace
{
constexpr int kLongestWait = 10'000; // in milliseconds; no good run waits that long
} // namespace

CPlayer& CPlayer::Then(std::string sName, TTurn turn)
{
    mTurns.push_back({std::move(sName), std::move(turn)});
    return *this;
}

CPlayer& CPlayer::Do(const std::vector<std::string>& rInputs)
{
    for (const std::string& rsInput : rInputs)
        Then(rsInput, [rsInput] { gInput(rsInput); });
    return *this;
}

void CPlayer::Play(const std::function<void()>& rRun)
{
    mWaiting = QDeadlineTimer(kLongestWait);
    mnTimer = startTimer(0);
    qApp->installEventFilter(this);
    rRun();
    qApp->removeEventFilter(this);
    killTimer(mnTimer);
    EXPECT_EQ(mnNext, mTurns.size())
        << "the run ended before '" << (mnNext < mTurns.size() ? mTurns[mnNext].sName : "") << "'";
    // What was left to the event loop ends now.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool CPlayer::eventFilter(QObject* pObject, QEvent* pEvent)
{
    const auto* const pWidget = qobject_cast<const QWidget*>(pObject);
    if (pEvent->type() == QEvent::Show && pWidget && pWidget->windowType() == Qt::Popup)
        mbHadPopup = true;
    return false;
}

void CPlayer::timerEvent(QTimerEvent*)
{
    // The inputs of a turn give the event loop a moment of their own: that is no new turn, unless
    // the turn has opened a window with a loop of its own.
    const int nLevel = QThread::currentThread()->loopLevel();
    if (nLevel == mnBusyLevel)
        return;
    // A timer doesn't fire while its own event is under way.
    killTimer(mnTimer);
    mnTimer = startTimer(0);
    const int nBefore = std::exchange(mnBusyLevel, nLevel);
    QCoreApplication::processEvents();
    if (IsWindowReady())
        TakeTurn();
    mnBusyLevel = nBefore;
}

/// A window that has just been opened takes keys only when the window system has said so.
bool CPlayer::IsWindowReady()
{
    QWidget* const pFront = QApplication::activeModalWidget();
    // A window system gives the keyboard back when a menu closes; without a screen nobody does.
    if (!QGuiApplication::focusWindow() && !QApplication::activePopupWidget() && pFront &&
        std::exchange(mbHadPopup, false))
        pFront->activateWindow();
    if (QGuiApplication::focusWindow()) {
        if (mnNext < mTurns.size())
            mWaiting = QDeadlineTimer(kLongestWait);
        return true;
    }
    if (!mWaiting.hasExpired())
        return false;
    ADD_FAILURE() << "the window in front never became active";
    mnNext = mTurns.size();
    return true;
}

void CPlayer::TakeTurn()
{
    const std::string sAfter = mnNext == 0 ? "the start" : '\'' + mTurns[mnNext - 1].sName + '\'';
    EXPECT_THAT(gCompareWindowsWithModels(), testing::IsEmpty()) << "after " << sAfter;
    if (mnNext == mTurns.size() && mMore && !gDesktop().Thread().mModalRuns.empty())
        if (TTurn turn = mMore())
            mTurns.push_back({"turn " + std::to_string(mnNext), std::move(turn)});
    if (mnNext == mTurns.size()) {
        // A button that is pressed by its mnemonic stays down for a moment.
        if (mWaiting.hasExpired())
            CloseLeftovers();
        return;
    }
    const TTurn turn = mTurns[mnNext++].turn;
    turn();
}

void CPlayer::CloseLeftovers()
{
    const auto& rRuns = gDesktop().Thread().mModalRuns;
    auto* const pBox = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (gDesktop().Thread().mnOpenBoxes > 0 && pBox) {
        ADD_FAILURE() << "a box is left open: " << pBox->windowTitle().toStdString();
        pBox->done(0);
    } else if (!rRuns.empty() && !rRuns.front()->bEnded) {
        ADD_FAILURE() << "a dialog is left open";
        gDesktop().EndModalRuns();
    }
}

CTestDesktop::~CTestDesktop()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
