#pragma once

#include "browser/ParamBrowserCustomTableCtrl.h"
#include "foundation/StringU.h"
#include "params/CircuitParams.h"
#include "params/ListEntries.h"
#include "platform/ui/ResizeDialog.h"

#include <vector>

/// The list of all models that a run declared, in all subcircuits.
class TParameterBrowserCircuitModelDatasetsDlg : public CXTPResizeDialog
{
public:
    /// @param pParent the window that owns it, may be null
    /// @param rParams the store; it outlives the dialog
    /// @param bAllowRecalculate whether the user can ask for another calculation
    TParameterBrowserCircuitModelDatasetsDlg(CWnd* pParent, const TCircuitParams& rParams,
                                             bool bAllowRecalculate);

    /// Whether the user has asked for another calculation.
    [[nodiscard]] bool WantsRecalculate() const noexcept { return mbRecalculate; }

    bool OnInitDialog() override;

protected:
    [[nodiscard]] TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnDetails();
    void OnExport();
    void OnQuorvaModels();
    void OnRecalculate();
    LRESULT OnSize(WPARAM wParam, LPARAM lParam);

    const TCircuitParams* mpParams;
    std::vector<TModelListEntry> mModels;
    bool mbAllowRecalculate;
    TParamBrowserCustomTableCtrl mTable;
    CStringU msExportText;
    bool mbRecalculate = false;
};
