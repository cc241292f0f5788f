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

// The parameter browser. Each of these runs a dialog until the user closes it; the current desktop
// (`gSetDesktop`) shows it. `pParent`: the window that owns it, may be null. `rParams`: the store
// that was read; it stays as it is and outlives the call.

/// Shows all devices.
/// `bAllowRecalculate`: whether the user can ask for another calculation.
/// Result: whether he did; the host then calculates, reads the new file and calls again.
bool gInvokeParamBrowserDevicesDialog(CWnd* pParent, const TCircuitParams& rParams,
                                      bool bAllowRecalculate);

/// Shows the parameters of a device. Where there is no such device, it shows the devices of the
/// subcircuit of that name, or all of them.
/// `rsSubckt`: the subcircuit that the device stands in; empty for a device at a top level without
/// a name, and to name a subcircuit by `rsDevice`. Both are exact.
/// Result: whether the user has asked for another evaluation.
bool gInvokeDeviceDetailsDialog(CWnd* pParent, const TCircuitParams& rParams,
                                const CStringU& rsSubckt, const CStringU& rsDevice);

/// Shows all models that the run declared; arguments and result as of
/// `gInvokeParamBrowserDevicesDialog`.
bool gInvokeParamBrowserLibraryModelsDialog(CWnd* pParent, const TCircuitParams& rParams,
                                            bool bAllowRecalculate);

/// Shows the model classes that the simulator offers.
/// `rsClass`: the exact name of the class to select; the first one where there is none of it.
void gInvokeParamBrowserQuorvaModelsDialog(CWnd* pParent, const TCircuitParams& rParams,
                                           const CStringU& rsClass);

} // namespace quorvawiz
