#pragma once

#include "quorvahost/HostOptions.h"

namespace quorvawiz::host
{

/// Runs the wizard without an editor until the user closes it.
/// @return the program's exit code: 0, or 1 after a message on standard error when a command
/// couldn't
///         be put where it belongs
int gRunWizardAlone(const THostOptions& rOptions);

} // namespace quorvawiz::host
