#pragma once

#include <string>

class CDialog;

/// The letters that lead to more than one control of what is visible now, in the dialog and its
/// pane, without those that the pane's template names as shared; in alphabetical order.
std::string gSharedMnemonics(CDialog& rDialog);
