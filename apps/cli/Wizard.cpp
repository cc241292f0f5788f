#include "cli/Wizard.h"

#include "exports/Quorvawiz.h"

namespace quorvawiz::cli
{

TWizard gSpiceWizard()
{
    return {gWizardTree(), gWizardPagesWithoutNode(), [](QuorvaCommandWizardTarget& rTarget) {
                gInvokeSpiceCommandWizard(nullptr, &rTarget);
            }};
}

} // namespace quorvawiz::cli
