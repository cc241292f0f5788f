#include "quorvahost/tour/User.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMessageBox>
#include <QScopeGuard>
#include <QTest>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace quorvawiz::host
{
namespace
{
/// What a window manager does when a window opens in front, or the active one closes. A window
/// system takes its time to give the keyboard away.
void ActivateFront()
{
    QWidget* pFront = QApplication::activeModalWidget();
    for (QWidget* const pWindow : QApplication::topLevelWidgets())
        if (!pFront && pWindow->isVisible() && pWindow->windowType() == Qt::Window)
            pFront = pWindow;
    if (!pFront || !QTest::qWaitForWindowExposed(pFront))
        return;
    pFront->activateWindow();
    if (QTest::qWaitForWindowActive(pFront))
        CUser::Settle();
}

/// The keys of an open menu come through the window behind it.
bool HasFrontTheKeyboard()
{
    const QWindow* const pFocus = QGuiApplication::focusWindow();
    const QWidget* const pModal = QApplication::activeModalWidget();
    return pFocus &&
           (QApplication::activePopupWidget() || !pModal || pFocus == pModal->windowHandle());
}

/// File dialogs keep some of their buttons down.
qsizetype CountButtonsThatAreDown()
{
    const QWidgetList widgets = QApplication::allWidgets();
    return std::count_if(widgets.begin(), widgets.end(), [](const QWidget* pWidget) {
        const auto* const pButton = qobject_cast<const QAbstractButton*>(pWidget);
        return pButton && pButton->isVisible() && pButton->isDown();
    });
}

QWindow* Receiver()
{
    if (!HasFrontTheKeyboard())
        ActivateFront();
    QWindow* const pWindow = QGuiApplication::focusWindow();
    if (!pWindow)
        throw CUserError("no window has the keyboard");
    return pWindow;
}

std::string NameOf(const QWidget& rWindow)
{
    const auto* const pBox = qobject_cast<const QMessageBox*>(&rWindow);
    return (pBox ? pBox->text() : rWindow.windowTitle()).toStdString();
}

bool IsMet(const QWidget& rWindow)
{
    return rWindow.isWindow() &&
           (rWindow.isModal() || qobject_cast<const QMenu*>(&rWindow) != nullptr);
}
} // namespace

CUser::CUser()
{
    QApplication::instance()->installEventFilter(this);
    // Before a loop waits for what never comes.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &CUser::OnIdle);
}

CUser::~CUser() = default;

CUser& CUser::Meet(TAct act)
{
    mActs.push_back(std::move(act));
    return *this;
}

CUser& CUser::MeetFirst(TAct act)
{
    mActs.push_front(std::move(act));
    return *this;
}

void CUser::Press(const QKeySequence& rKeys)
{
    for (int i = 0; i < rKeys.count(); ++i) {
        const qsizetype nDown = CountButtonsThatAreDown();
        const QKeyCombination combination = rKeys[static_cast<uint>(i)];
        QTest::keyClick(Receiver(), combination.key(), combination.keyboardModifiers());
        Settle();
        // A button that is pressed by its mnemonic stays down for a moment before it acts.
        while (CountButtonsThatAreDown() > nDown)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void CUser::Type(const QString& rsText)
{
    for (const QChar character : rsText)
        QTest::keyClick(Receiver(), character.toLatin1());
    Settle();
}

void CUser::Click(QWidget& rWidget)
{
    ClickAt(rWidget, rWidget.rect().center());
}

void CUser::ClickAt(QWidget& rWidget, QPoint place)
{
    QWidget* const pWindow = rWidget.window();
    QTest::mouseClick(pWindow->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      rWidget.mapTo(pWindow, place));
    Settle();
}

void CUser::Settle()
{
    // Posted events may post more of them.
    constexpr int kRounds = 10;
    for (int i = 0; i < kRounds; ++i) {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
}

void CUser::AwaitEnd(const QWidget& rWindow)
{
    const QPointer<const QWidget> pWindow(&rWindow);
    while (pWindow && pWindow->isVisible())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void CUser::RethrowFailure()
{
    if (mpFailure)
        std::rethrow_exception(std::exchange(mpFailure, nullptr));
}

bool CUser::eventFilter(QObject* pObject, QEvent* pEvent)
{
    auto* const pWindow = qobject_cast<QWidget*>(pObject);
    if (pEvent->type() == QEvent::Show && pWindow && IsMet(*pWindow)) {
        ++mnActing; // from now on, so that no loop waits before it has begun
        QMetaObject::invokeMethod(
            this, [this, pOpened = QPointer<QWidget>(pWindow)] { ActOn(pOpened); },
            Qt::QueuedConnection);
    }
    return QObject::eventFilter(pObject, pEvent);
}

void CUser::ActOn(const QPointer<QWidget>& rpWindow)
{
    const auto acted = qScopeGuard([this] { --mnActing; });
    if (!rpWindow || !rpWindow->isVisible())
        return;
    try {
        if (mActs.empty())
            throw CUserError("nobody waits for the window: " + NameOf(*rpWindow));
        const TAct act = std::move(mActs.front());
        mActs.pop_front();
        Settle();
        act(*rpWindow);
    } catch (...) {
        GiveUp(std::current_exception());
    }
}

void CUser::OnIdle()
{
    const QWidget* const pOpen = QApplication::activeModalWidget();
    if (!pOpen || mnActing > 0) {
        mnIdle = 0;
        return;
    }
    // Others who listen may be about to close it: the second time in turn is one too many.
    if (++mnIdle == 1) {
        QMetaObject::invokeMethod(
            this, [] {}, Qt::QueuedConnection);
        return;
    }
    mnIdle = 0;
    GiveUp(std::make_exception_ptr(CUserError("a window was left open: " + NameOf(*pOpen))));
}

void CUser::GiveUp(const std::exception_ptr& rpWhy)
{
    if (!mpFailure)
        mpFailure = rpWhy;
    mActs = {};
    QWidget* const pOpen = QApplication::activeModalWidget();
    if (!pOpen)
        return;
    // The loops of all windows are one inside the other: each one that closes lets the next one go.
    if (std::exchange(mpClosing, pOpen) == pOpen)
        qFatal("\"%s\" can't be closed", NameOf(*pOpen).c_str());
    pOpen->close();
}

} // namespace quorvawiz::host
