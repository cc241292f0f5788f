#pragma once

#include "platform/ui/RuntimeClass.h"
#include "wizard/frame/CommandWizardTarget.h"
#include "wizard/frame/WizardPages.h"

#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace quorvawiz::cli
{

/// The wizard that a command works on: the real one, or a small one of a test.
struct TWizard {
    /// The tree from top to bottom.
    std::span<const TTreeRow> tree;
    /// The pages that no node leads to.
    std::span<const CRuntimeClass* const> withoutNode;
    /// Runs the wizard until it is closed; the commands go to the target.
    std::function<void(QuorvaCommandWizardTarget& rTarget)> run;
};

/// The SPICE Command Wizard.
TWizard gSpiceWizard();

/// Keeps the commands that reach it, in order.
class CCommandCollector final : public QuorvaCommandWizardTarget
{
public:
    void InsertCommand(CString sCommand) override { mCommands.push_back(std::move(sCommand)); }

    /// The commands since the last call.
    std::vector<CString> Take() { return std::exchange(mCommands, {}); }

private:
    std::vector<CString> mCommands;
};

} // namespace quorvawiz::cli
