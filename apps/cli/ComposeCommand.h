#pragma once

#include "cli/Wizard.h"

#include <string>
#include <vector>

namespace quorvawiz::cli
{

/// What `compose` is asked for. Texts are UTF-8.
struct TComposeOptions {
    std::string sPage;
    std::vector<std::string> arguments;
    bool bJson = false;
};

/// Composes a command and tells it: on the standard output the command or the JSON, on standard
/// error messages of the wizard and what is wrong.
/// @return the program's exit code: kDone exactly when the wizard inserted a command
int gRunCompose(const TWizard& rWizard, const TComposeOptions& rOptions);

} // namespace quorvawiz::cli
