#pragma once

#include "platform/ui/Desktop.h"

#include <memory>

class QMessageBox;

/// The box with its text, icon and buttons, to be run once. A yes/no box can only be left by one of
/// its buttons. `rsDefaultCaption`: the caption of a box that has none of its own.
std::unique_ptr<QMessageBox> gMakeMessageBox(const TMessageBox& rBox,
                                             const CString& rsDefaultCaption);

/// The platform's result from that of the box's run.
int gResultOf(const TMessageBox& rBox, int nButton);
