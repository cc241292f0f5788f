#include "cli/arguments/ArgumentTable.h"

namespace quorvawiz::cli
{
namespace
{
constexpr std::unique_ptr<CCommandArguments> (*kCommands[])(CLI::App& rProgram) = {
    gMakePagesArguments,   gMakeDescribeArguments, gMakeComposeArguments,
    gMakeOptionsArguments, gMakeSessionArguments,  gMakeCallArguments,
    gMakeParamsArguments,  gMakeExampleArguments,  gMakeImportArguments,
};
} // namespace

std::vector<std::unique_ptr<CCommandArguments>> gAddCommands(CLI::App& rProgram)
{
    std::vector<std::unique_ptr<CCommandArguments>> commands;
    for (const auto pMake : kCommands)
        commands.push_back(pMake(rProgram));
    return commands;
}

} // namespace quorvawiz::cli
