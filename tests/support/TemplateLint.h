#pragma once

#include "platform/ui/DialogTemplate.h"

#include <string>
#include <vector>

/// What is wrong with a template, one sentence each; empty for a good one. The rules:
/// ids are unique, and so are keys (a label or unit has its field's, a radio group has one);
/// a radio group stands together and its first row says so;
/// every input has a label in front of it, or shares that of the input whose place it takes, and
/// every button, check box, radio and group a text, unless the row says that it is meant to have
/// none;
/// nothing lies outside the dialog, nothing is lower than its text needs, and no two controls
/// that can be visible together overlap, but a group and what it surrounds; the tab order is the
/// reading order, line by line or column by column, up to a rotation, with a radio group standing
/// where its first button does; and the buttons of a group go down or to the right.
std::vector<std::string> gLintTemplate(const DialogTemplate& rTemplate);
