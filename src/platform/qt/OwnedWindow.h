#pragma once

class CWnd;
class QWidget;

/// The widget of the window that owns a dialog or box, or, without an owner, the window that the
/// user is in. Null when there is neither.
QWidget* gOwnerWidgetOf(const CWnd* pOwner);

/// Puts a window in front of its owner (may be null), without making it the owner's child: the
/// owner may be deleted while the window is open.
void gTieToOwner(QWidget& rWindow, const QWidget* pOwner);

/// Gives the owner's window back to the user when a window of it has closed. Nothing for null.
void gActivateOwner(QWidget* pOwner);
