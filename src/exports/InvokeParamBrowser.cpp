#include "browser/BrowseDevice.h"
#include "browser/ParameterBrowserCircuitModelDatasetsDlg.h"
#include "browser/ParameterBrowserDevicesDlg.h"
#include "browser/ParameterBrowserQuorvaModelsDlg.h"
#include "exports/Quorvawiz.h"

bool quorvawiz::gInvokeParamBrowserDevicesDialog(CWnd* pParent, const TCircuitParams& rParams,
                                                 bool bAllowRecalculate)
{
    TParameterBrowserDevicesDlg dialog(pParent, rParams, {}, bAllowRecalculate);
    dialog.DoModal();
    return dialog.WantsRecalculate();
}

bool quorvawiz::gInvokeDeviceDetailsDialog(CWnd* pParent, const TCircuitParams& rParams,
                                           const CStringU& rsSubckt, const CStringU& rsDevice)
{
    return gBrowseDevice(pParent, rParams, rsSubckt, rsDevice);
}

bool quorvawiz::gInvokeParamBrowserLibraryModelsDialog(CWnd* pParent, const TCircuitParams& rParams,
                                                       bool bAllowRecalculate)
{
    TParameterBrowserCircuitModelDatasetsDlg dialog(pParent, rParams, bAllowRecalculate);
    dialog.DoModal();
    return dialog.WantsRecalculate();
}

void quorvawiz::gInvokeParamBrowserQuorvaModelsDialog(CWnd* pParent, const TCircuitParams& rParams,
                                                      const CStringU& rsClass)
{
    TParameterBrowserQuorvaModelsDlg(pParent, rParams, rsClass).DoModal();
}
