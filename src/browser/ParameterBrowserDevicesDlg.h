#pragma once

#include "browser/ParamBrowserCustomTableCtrl.h"
#include "foundation/StringU.h"
#include "params/CircuitParams.h"
#include "params/ListEntries.h"
#include "platform/ui/ResizeDialog.h"

#include <vector>

/// The list of the devices of a run, or of one subcircuit: the browser's main view.
class TParameterBrowserDevicesDlg : public CXTPResizeDialog
{
public:
    /// @param pParent the window that owns it, may be null
    /// @param rParams the store; it outlives the dialog and isn't changed
    /// @param rsFilter the subcircuit to show; all devices if it is empty or names none
    /// @param bAllowRecalculate whether the user can ask for another calculation
    TParameterBrowserDevicesDlg(CWnd* pParent, const TCircuitParams& rParams,
                                const CStringU& rsFilter, bool bAllowRecalculate);

    /// Whether the user has asked for another calculation.
    [[nodiscard]] bool WantsRecalculate() const noexcept { return mbRecalculate; }

    bool OnInitDialog() override;

protected:
    [[nodiscard]] TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnDetails();
    void OnExport();
    void OnRecalculate();
    LRESULT OnSize(WPARAM wParam, LPARAM lParam);

    const TCircuitParams* mpParams;
    std::vector<TDeviceListEntry> mDevices;
    bool mbAllowRecalculate;
    TParamBrowserCustomTableCtrl mTable;
    CStringU msExportText;
    bool mbRecalculate = false;
    CStringU msFilter;
};
