#pragma once

#include "foundation/StringU.h"
#include "wizard/frame/CommandWizardTarget.h"

#include <boost/smart_ptr/shared_ptr.hpp>

#include <utility>

class CWnd;
class TCircuitParams;

/// What a host calls.
namespace quorvawiz
{

/// Runs the SPICE Command Wizard until the user closes it.
/// `pParent`: the window that owns the dialog, may be null. `pTarget`: receives each inserted
/// command while the wizard is open; a null one raises CInvalidArgException at the first insertion.
/// The current desktop (`gSetDesktop`) shows the dialog. Exceptions of the target pass through.
void gInvokeSpiceCommandWizard(CWnd* pParent, QuorvaCommandWizardTarget* pTarget);

/// Reads a params file, which the simulator writes, into a new store. Throws nothing, not
/// even where the memory is at its end, and shows nothing.
/// `rsPath`: the file.
/// Result: an empty text, or a message for the user; and the store, which is never null. After a
/// failure it has what was read so far, so that the text is what to ask.
std::pair<CStringU, boost::shared_ptr<TCircuitParams>>
gReadCircuitParameters(const CStringU& rsPath);

} // namespace quorvawiz
