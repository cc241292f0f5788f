#pragma once

#include "cli/ComposeCommand.h"
#include "cli/DescribeCommand.h"
#include "cli/OptionsCommand.h"
#include "cli/PagesCommand.h"
#include "cli/call/CallCommand.h"
#include "cli/example/MakeExampleCommand.h"
#include "cli/params/ParamsCommand.h"
#include "platform/base/CodePage.h"

#include <string>
#include <variant>

namespace quorvawiz::cli
{

/// `session` has no options of its own.
struct TSessionOptions {
};

/// The arguments of the program, read.
struct TCommandLine {
    unsigned nCodePage = kCodePageUtf8; ///< known
    bool bUnixRules = false;            ///< path rules of the Unix side
    std::variant<TPagesOptions, TDescribeOptions, TComposeOptions, TOptionsOptions, TSessionOptions,
                 TCallOptions, TParamsOptions, TMakeExampleOptions>
        command;
};

/// A text that the user asked for instead of a command: help or version.
struct TInformation {
    std::string sText;
};

/// Reads the arguments of the program.
/// @param nArguments, ppArguments as main gets them
/// @throws CUsageError if they are wrong
std::variant<TCommandLine, TInformation> gReadCommandLine(int nArguments,
                                                          const char* const* ppArguments);

} // namespace quorvawiz::cli
