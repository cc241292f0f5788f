#pragma once

#include "cli/Wizard.h"

#include <string>

namespace quorvawiz::cli
{

/// What `pages` is asked for.
struct TPagesOptions {
    bool bJson = false;
};

/// The list of all pages: a line per node of the tree in its order with path, class and whether it
/// is built, then the pages without a node.
/// @return the text for the standard output
std::string gTellPages(const TWizard& rWizard, const TPagesOptions& rOptions);

/// Runs `pages`. Result: the program's exit code.
int gRunPages(const TPagesOptions& rOptions);

} // namespace quorvawiz::cli
