#pragma once

#include "quorvahost/HostOptions.h"

namespace quorvawiz::host
{

/// Runs the wizard without an editor until the user closes it. A command that can't be put where
/// it belongs is told of in a box, and the wizard stays open.
/// @return the program's exit code: 0, or 1 after a message on standard error when the wizard
///         didn't open or a command was lost
int gRunWizardAlone(const THostOptions& rOptions);

} // namespace quorvawiz::host
