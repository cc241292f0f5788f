#include "qt/Player.h"

#include "platform/ui/Dialog.h"
#include "qt/CompareWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QThread>
#include <QTimerEvent>
#include <QWindow>
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
    rRun();
    killTimer(mnTimer);
    EXPECT_EQ(mnNext, mTurns.size())
        << "the run ended before '" << (mnNext < mTurns.size() ? mTurns[mnNext].sName : "") << "'";
    // What was left to the event loop ends now.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
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
    const QWindow* const pFocus = QGuiApplication::focusWindow();
    // The keys of an open list come through the window behind it.
    if (pFocus &&
        (QApplication::activePopupWidget() || !pFront || pFocus == pFront->windowHandle())) {
        if (mnNext < mTurns.size())
            mWaiting = QDeadlineTimer(kLongestWait);
        return true;
    }
    // A window manager gives the keyboard to what opens in front, and back when that closes. There
    // is none here.
    if (pFront && pFront->windowHandle() && pFront->windowHandle()->isExposed())
        pFront->activateWindow();
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
