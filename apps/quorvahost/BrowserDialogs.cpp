#include "quorvahost/BrowserDialogs.h"

#include "exports/Quorvawiz.h"

namespace quorvawiz::host
{

bool gBrowse(EBrowserList list, CWnd* pParent, const TCircuitParams& rStore)
{
    switch (list) {
    case EBrowserList::Devices:
        return gInvokeParamBrowserDevicesDialog(pParent, rStore, true);
    case EBrowserList::LibraryModels:
        return gInvokeParamBrowserLibraryModelsDialog(pParent, rStore, true);
    case EBrowserList::SimulatorModels:
        gInvokeParamBrowserQuorvaModelsDialog(pParent, rStore, {});
        return false;
    }
    return false;
}

} // namespace quorvawiz::host
