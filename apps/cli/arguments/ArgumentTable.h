#pragma once

#include "cli/arguments/CommandArguments.h"

#include <memory>
#include <vector>

namespace quorvawiz::cli
{

/// The arguments of each command, from the command's own file. `rProgram`: the parser of the
/// program.
std::unique_ptr<CCommandArguments> gMakePagesArguments(CLI::App& rProgram);
std::unique_ptr<CCommandArguments> gMakeDescribeArguments(CLI::App& rProgram);
std::unique_ptr<CCommandArguments> gMakeComposeArguments(CLI::App& rProgram);
std::unique_ptr<CCommandArguments> gMakeOptionsArguments(CLI::App& rProgram);
std::unique_ptr<CCommandArguments> gMakeSessionArguments(CLI::App& rProgram);
std::unique_ptr<CCommandArguments> gMakeCallArguments(CLI::App& rProgram);
std::unique_ptr<CCommandArguments> gMakeParamsArguments(CLI::App& rProgram);
std::unique_ptr<CCommandArguments> gMakeExampleArguments(CLI::App& rProgram);
std::unique_ptr<CCommandArguments> gMakeImportArguments(CLI::App& rProgram);

/// Adds all commands to the parser of the program, in the order of its help.
/// @param rProgram lives longer than the result
std::vector<std::unique_ptr<CCommandArguments>> gAddCommands(CLI::App& rProgram);

} // namespace quorvawiz::cli
