#include "cli/arguments/ArgumentTable.h"

namespace quorvawiz::cli
{
namespace
{
class CDescribeArguments final : public CCommandArguments
{
public:
    explicit CDescribeArguments(CLI::App& rProgram)
        : CCommandArguments(rProgram, "describe", "Tell every control of a page")
    {
        AddPage(mOptions.sPage);
        AddJsonFlag(mOptions.bJson);
    }
    TCommand Read() override { return mOptions; }

private:
    TDescribeOptions mOptions;
};
} // namespace

std::unique_ptr<CCommandArguments> gMakeDescribeArguments(CLI::App& rProgram)
{
    return std::make_unique<CDescribeArguments>(rProgram);
}

} // namespace quorvawiz::cli
