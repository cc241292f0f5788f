#include "cli/arguments/ArgumentTable.h"
#include "cli/arguments/ReadNumber.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <cstdint>
#include <limits>
#include <string>

namespace quorvawiz::cli
{
namespace
{
constexpr int kMostDevices = 10'000'000;

class CExampleArguments final : public CCommandArguments
{
public:
    explicit CExampleArguments(CLI::App& rProgram)
        : CCommandArguments(rProgram, "make-example", "Write a params file of a plausible circuit")
    {
        CLI::App& rParser = Parser();
        rParser.add_option("OUT", msOut, "The file to write")->type_name("")->required();
        rParser.add_option("--devices", msDevices, "How many devices")
            ->type_name("NUMBER")
            ->capture_default_str();
        rParser.add_option("--seed", msSeed, "The same seed makes the same file")
            ->type_name("NUMBER")
            ->capture_default_str();
    }

    TCommand Read() override
    {
        return TMakeExampleOptions{
            msOut, gReadWhole("--devices", msDevices, kMostDevices),
            gReadWhole("--seed", msSeed, std::numeric_limits<std::uint64_t>::max())};
    }

private:
    std::string msOut;
    std::string msDevices = "1000";
    std::string msSeed = "1";
};
} // namespace

std::unique_ptr<CCommandArguments> gMakeExampleArguments(CLI::App& rProgram)
{
    return std::make_unique<CExampleArguments>(rProgram);
}

} // namespace quorvawiz::cli
