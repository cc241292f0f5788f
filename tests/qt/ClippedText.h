#pragma once

#include <string>
#include <vector>

class QWidget;

/// What of a window's texts has too little room, widget by widget: a text that is wider or higher
/// than its label, button, frame or list, a field too low for a line of text, tabs with arrows, a
/// table's heading or a list that hides an end, a label or a frame's caption that lies over another
/// text or field, and a widget that reaches beyond its parent. Empty when everything can be read.
std::vector<std::string> gFindClippedText(const QWidget& rWindow);
