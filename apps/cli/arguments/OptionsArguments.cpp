#include "cli/arguments/ArgumentTable.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

namespace quorvawiz::cli
{
namespace
{
constexpr const char* kWordHelp = "Only those that have it in their name, key or explanation";

class COptionsArguments final : public CCommandArguments
{
public:
    explicit COptionsArguments(CLI::App& rProgram)
        : CCommandArguments(rProgram, "options", "List the options of the simulator")
    {
        Parser().add_option("WORD", mOptions.sWord, kWordHelp)->type_name("");
        AddJsonFlag(mOptions.bJson);
    }
    TCommand Read() override { return mOptions; }

private:
    TOptionsOptions mOptions;
};
} // namespace

std::unique_ptr<CCommandArguments> gMakeOptionsArguments(CLI::App& rProgram)
{
    return std::make_unique<COptionsArguments>(rProgram);
}

} // namespace quorvawiz::cli
