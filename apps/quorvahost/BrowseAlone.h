#pragma once

#include "quorvahost/HostOptions.h"

namespace quorvawiz::host
{

/// Runs a list of the parameter browser without an editor until the user closes it; a wish to
/// recalculate reads the file again. A file that can't be read is told of in a box.
/// @return the program's exit code: 0, or 1 after a message on standard error
int gRunBrowseAlone(const THostOptions& rOptions);

} // namespace quorvawiz::host
