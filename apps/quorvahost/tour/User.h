#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <deque>
#include <exception>
#include <functional>
#include <stdexcept>

class QKeySequence;
class QWidget;

namespace quorvawiz::host
{

/// What a scripted user waits for doesn't come.
class CUserError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A user made of real events: presses keys on whatever has the keyboard, and acts on each window
/// that opens in front. The application has one at a time.
class CUser : public QObject
{
public:
    /// Gets the window that has opened, in its event loop; leaving it open is an error.
    using TAct = std::function<void(QWidget& rWindow)>;

    CUser();
    ~CUser() override;

    /// Meets the next modal window or menu that opens. Several calls meet several windows, in this
    /// order, also one inside the other. A window that nobody waits for is an error.
    CUser& Meet(TAct act);

    /// As `Meet`, in front of the windows that are waited for.
    CUser& MeetFirst(TAct act);

    /// True when every window of `Meet` has come.
    bool HasMetAll() const { return mActs.empty(); }

    /// Presses keys on the window that has the keyboard.
    /// @throws CUserError if there is none
    void Press(const QKeySequence& rKeys);

    /// Types a text there, as `Press`.
    /// @param rsText Latin-1
    void Type(const QString& rsText);

    /// Clicks into the middle of a visible widget.
    static void Click(QWidget& rWidget);

    /// Clicks on a visible widget at a place of it, in pixels.
    static void ClickAt(QWidget& rWidget, QPoint place);

    /// Lets everything happen that is waiting.
    static void Settle();

    /// Returns when a window has closed by itself.
    static void AwaitEnd(const QWidget& rWindow);

    /// Throws what an action threw: an event loop passes no exceptions.
    void RethrowFailure();

protected:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    void ActOn(const QPointer<QWidget>& rpWindow);
    void OnIdle();
    void GiveUp(const std::exception_ptr& rpWhy);

    std::deque<TAct> mActs;
    int mnActing = 0; ///< windows that are being acted on
    int mnIdle = 0;   ///< how often in turn a loop was about to wait with a window left open
    QPointer<QWidget> mpClosing;
    std::exception_ptr mpFailure;
};

} // namespace quorvawiz::host
