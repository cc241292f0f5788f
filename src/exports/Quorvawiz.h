#pragma once

#include "wizard/frame/CommandWizardTarget.h"

class CWnd;

/// What a host calls.
namespace quorvawiz
{

/// Runs the SPICE Command Wizard until the user closes it.
/// `pParent`: the window that owns the dialog, may be null. `pTarget`: receives each inserted
/// command while the wizard is open; a null one raises CInvalidArgException at the first insertion.
/// The current desktop (`gSetDesktop`) shows the dialog. Exceptions of the target pass through.
void gInvokeSpiceCommandWizard(CWnd* pParent, QuorvaCommandWizardTarget* pTarget);

} // namespace quorvawiz
