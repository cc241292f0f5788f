// The smallest program of a user: it sees installed headers and the installed archive, nothing
// else, and drives the wizard as a host and a person would.

#include "exports/Quorvawiz.h"
#include "platform/headless/HeadlessDesktop.h"
#include "platform/headless/Step.h"
#include "quorvawiz/version.h"

#include <iostream>
#include <vector>

namespace
{
class CTarget : public quorvawiz::QuorvaCommandWizardTarget
{
public:
    void InsertCommand(CString sCommand) override { msCommand = sCommand; }
    CString msCommand;
};
} // namespace

int main()
{
    const std::vector<TStep> steps = {{EStep::SelectPath, "tree", "Settings/Temperature"},
                                      {EStep::Set, "temperature-list", "0 27 85"},
                                      {EStep::Click, "insert"}};
    auto next = steps.begin();
    HeadlessDesktop desktop([&](CDialog& rDialog) {
        return next != steps.end() && gRunStep(rDialog, *next++).IsDone();
    });
    CTarget target;
    quorvawiz::gInvokeSpiceCommandWizard(nullptr, &target);
    if (target.msCommand != ".temp 0 27 85") {
        std::cerr << "the target got \"" << target.msCommand.GetString() << "\"\n";
        return 1;
    }
    std::cout << "quorvawiz " << quorvawiz::kVersion << " inserts " << target.msCommand.GetString()
              << '\n';
    return 0;
}
