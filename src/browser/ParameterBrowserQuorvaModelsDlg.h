#pragma once

#include "browser/ModelClassRow.h"
#include "browser/ParamBrowserCustomTableCtrl.h"
#include "foundation/StringU.h"
#include "params/CircuitParams.h"
#include "platform/ui/ResizeDialog.h"

#include <vector>

/// The list of the model classes that the simulator offers, used or not.
class TParameterBrowserQuorvaModelsDlg : public CXTPResizeDialog
{
public:
    /// @param pParent the window that owns it, may be null
    /// @param rParams the store; it outlives the dialog and isn't changed
    /// @param rsSelectClass the exact name of the class to select; the first row where there is
    ///                      none of it
    TParameterBrowserQuorvaModelsDlg(CWnd* pParent, const TCircuitParams& rParams,
                                     const CStringU& rsSelectClass);

    bool OnInitDialog() override;

protected:
    [[nodiscard]] TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnDetails();
    void OnExport();
    LRESULT OnSize(WPARAM wParam, LPARAM lParam);

    const TCircuitParams* mpParams;
    std::vector<TModelClassRow> mClassRows;
    CStringU msSelectClass;
    TParamBrowserCustomTableCtrl mTable;
    CStringU msExportText;
};
