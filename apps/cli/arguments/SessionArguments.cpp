#include "cli/arguments/ArgumentTable.h"

namespace quorvawiz::cli
{
namespace
{
constexpr const char* kFooter =
    R"(Each line of the standard input is a request, each gets one line in reply:
  {"op":"open","page":"Settings/Temperature"}
  {"op":"set","field":"temperature-list","text":"27"}
  {"op":"insert"}
The document session.md tells all requests.)";

class CSessionArguments final : public CCommandArguments
{
public:
    explicit CSessionArguments(CLI::App& rProgram)
        : CCommandArguments(rProgram, "session",
                            "Drive the wizard and the browser by lines of JSON")
    {
        AddFooter(kFooter);
    }
    TCommand Read() override { return TSessionOptions(); }
};
} // namespace

std::unique_ptr<CCommandArguments> gMakeSessionArguments(CLI::App& rProgram)
{
    return std::make_unique<CSessionArguments>(rProgram);
}

} // namespace quorvawiz::cli
