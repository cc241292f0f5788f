#include "cli/arguments/ArgumentTable.h"

namespace quorvawiz::cli
{
namespace
{
class CPagesArguments final : public CCommandArguments
{
public:
    explicit CPagesArguments(CLI::App& rProgram)
        : CCommandArguments(rProgram, "pages", "List the pages of the wizard")
    {
        AddJsonFlag(mOptions.bJson);
    }
    TCommand Read() override { return mOptions; }

private:
    TPagesOptions mOptions;
};
} // namespace

std::unique_ptr<CCommandArguments> gMakePagesArguments(CLI::App& rProgram)
{
    return std::make_unique<CPagesArguments>(rProgram);
}

} // namespace quorvawiz::cli
