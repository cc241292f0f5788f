#pragma once

#include "platform/qt/QtDesktop.h"
#include "qt/Inputs.h"

#include <QDeadlineTimer>
#include <QTemporaryDir>
#include <functional>
#include <string>
#include <vector>

/// A user at the real windows. He takes turns, each when the event loop has nothing left to do and
/// in whatever window is in front by then. Before each turn, every open dialog's window is compared
/// with its model.
class CPlayer : public QObject
{
public:
    using TTurn = std::function<void()>;

    /// Adds a turn. `sName` stands in the messages of what fails in it.
    CPlayer& Then(std::string sName, TTurn turn);
    /// Adds a turn for each input, as `gInput`.
    CPlayer& Do(const std::vector<std::string>& rInputs);

    /// Asked for a turn when there are no more and a dialog is open; an empty one ends the game.
    void SetMore(std::function<TTurn()> more) { mMore = std::move(more); }

    /// Lets the user act while `run` runs modal dialogs. Fails the test when turns are left over,
    /// or when windows are left open: these are then closed.
    void Play(const std::function<void()>& rRun);

protected:
    void timerEvent(QTimerEvent* pEvent) override;

private:
    struct TNamedTurn {
        std::string sName;
        TTurn turn;
    };

    bool IsWindowReady();
    void TakeTurn();
    void CloseLeftovers();

    std::vector<TNamedTurn> mTurns;
    std::function<TTurn()> mMore;
    std::size_t mnNext = 0;
    int mnTimer = 0;
    QDeadlineTimer mWaiting;
    int mnBusyLevel = -1; ///< the level of the event loop in which a turn is under way
};

/// A desktop with a profile of a moment.
class CTestDesktop
{
public:
    CTestDesktop() : mDesktop(mFolder.filePath(QStringLiteral("profile.ini"))) {}
    ~CTestDesktop();
    QtDesktop& Get() { return mDesktop; }

private:
    QTemporaryDir mFolder;
    QtDesktop mDesktop;
};
