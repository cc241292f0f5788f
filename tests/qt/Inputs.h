#pragma once

#include <Qt>
#include <string>
#include <string_view>

class CDialog;
class QPoint;
class QWidget;

/// One input of the user, by its name, sent to the window in front as a real event:
///   "press Alt+I"       a key with its modifiers
///   "type abc"          letters, each a key of its own
///   "paste abc"         a text from the clipboard
///   "click name"        into the middle of a control of the dialog in front; "level#1" is a button
///                       of a radio group
///   "click fruit@1"     on a row of a list or table, a tab, or, by its label, a node of a tree
///   "double fruit@1"    a double click there
///   "branch tree@A"     on the mark that opens and closes a node
///   "pick 1"            on a row of the list of a combo box that is open
///   "close"             the close button of the dialog's title bar
/// Fails the test when there is no such thing.
void gInput(std::string_view sInput);

/// The widget of a control of the dialog in front, by its key (or "level#1"). Fails the test and
/// returns null when there is none.
QWidget* gFrontWidget(std::string_view sKey);

/// The dialog in front. There is one.
CDialog& gFrontDialog();

/// A click; the position is the widget's own.
void gClickAt(QWidget& rWidget, const QPoint& rPosition, bool bDouble = false,
              Qt::MouseButton button = Qt::LeftButton);
