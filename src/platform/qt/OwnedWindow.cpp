#include "platform/qt/OwnedWindow.h"

#include "platform/qt/HostWidget.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>

namespace
{
/// Centred over the owner, but on the screen.
void PlaceOver(QWidget& rWindow, const QWidget& rOwner)
{
    QRect place(QPoint(), rWindow.sizeHint().expandedTo(rWindow.minimumSize()));
    if (rWindow.testAttribute(Qt::WA_Resized))
        place.setSize(rWindow.size());
    place.moveCenter(rOwner.frameGeometry().center());
    const QRect screen = rOwner.screen()->availableGeometry();
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    place.moveLeft(std::max(place.left(), screen.left()));
    place.moveTop(std::max(place.top(), screen.top()));
    rWindow.move(place.topLeft());
}
} // namespace

QWidget* gOwnerWidgetOf(const CWnd* pOwner)
{
    if (pOwner)
        return gWidgetOf(*pOwner);
    // Who has become active is told a moment later; what is modal is in front at once.
    QWidget* const pModal = QApplication::activeModalWidget();
    return pModal ? pModal : QApplication::activeWindow();
}

void gTieToOwner(QWidget& rWindow, const QWidget* pOwner)
{
    // The end of a dialog is never the end of the application.
    rWindow.setAttribute(Qt::WA_QuitOnClose, false);
    if (!pOwner)
        return;
    const QWidget* const pAround = pOwner->window();
    rWindow.winId(); // makes the native window that the tie needs
    if (QWindow* const pNative = pAround->windowHandle())
        rWindow.windowHandle()->setTransientParent(pNative);
    PlaceOver(rWindow, *pAround);
}

void gActivateOwner(QWidget* pOwner)
{
    if (!pOwner || !pOwner->window()->isVisible())
        return;
    pOwner->window()->activateWindow();
}
