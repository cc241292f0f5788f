#include "browser/BrowseDevice.h"

#include "browser/DisplayName.h"
#include "browser/ParameterBrowserDeviceDetailsDlg.h"
#include "browser/ParameterBrowserDevicesDlg.h"

bool gBrowseDevice(CWnd* pParent, const TCircuitParams& rParams, const CStringU& rsSubckt,
                   const CStringU& rsDevice)
{
    const CStringU sName = gMakeAskedName(rsSubckt, rsDevice);
    if (const TDeviceData* const pDevice = rParams.GetDeviceData(rsSubckt, rsDevice)) {
        TParameterBrowserDeviceDetailsDlg details(pParent, gMakeDeviceTitle(sName, *pDevice),
                                                  *pDevice, true);
        details.DoModal();
        return details.WantsReevaluate();
    }
    TParameterBrowserDevicesDlg devices(pParent, rParams, sName, true);
    devices.DoModal();
    return devices.WantsRecalculate();
}
