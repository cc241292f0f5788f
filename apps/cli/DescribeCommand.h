#pragma once

#include "cli/Wizard.h"

#include <string>

namespace quorvawiz::cli
{

/// What `describe` is asked for.
struct TDescribeOptions {
    std::string sPage; ///< UTF-8
    bool bJson = false;
};

/// Tells every control of a page as the page shows it when it is opened.
/// @return the text for the standard output
/// @throws CUsageError if there is no such page, or it isn't built
std::string gDescribePage(const TWizard& rWizard, const TDescribeOptions& rOptions);

/// Runs `describe`. Result: the program's exit code. Throws as `gDescribePage`.
int gRunDescribe(const TDescribeOptions& rOptions);

} // namespace quorvawiz::cli
