#pragma once

class CWnd;
class TCircuitParams;

namespace quorvawiz::host
{

/// The lists of the Parameter Browser.
enum class EBrowserList {
    Devices,
    LibraryModels,
    SimulatorModels,
};

/// Runs a list of the browser until the user closes it.
/// @param pParent the window that owns it, may be null
/// @return true when the user wants the values worked out anew; the simulator's classes have none
bool gBrowse(EBrowserList list, CWnd* pParent, const TCircuitParams& rStore);

} // namespace quorvawiz::host
