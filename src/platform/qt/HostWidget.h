#pragma once

class CWnd;
class QWidget;

/// A window for a host's own widget, to be the owner of dialogs and boxes. It belongs to the widget
/// and ends with it; the same widget always has the same one. Null for null.
CWnd* gWindowOf(QWidget* pWidget);

/// The widget that shows a window of the current QtDesktop, or the widget of `gWindowOf`.
/// Null when there is none.
QWidget* gWidgetOf(const CWnd& rWnd);
