#pragma once

#include "cli/Command.h"
#include "platform/base/CodePage.h"

#include <string>
#include <variant>

namespace quorvawiz::cli
{

/// The arguments of the program, read.
struct TCommandLine {
    unsigned nCodePage = kCodePageUtf8; ///< known
    bool bUnixRules = false;            ///< path rules of the Unix side
    TCommand command;
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
