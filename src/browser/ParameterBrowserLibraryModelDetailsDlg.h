#pragma once

#include "browser/ParamBrowserCustomTableCtrl.h"
#include "foundation/StringU.h"
#include "params/ModelData.h"
#include "platform/ui/ResizeDialog.h"

/// The parameters of one library model: the values that were given on it, and the defaults.
class TParameterBrowserLibraryModelDetailsDlg : public CXTPResizeDialog
{
public:
    /// @param pParent the window that owns it, may be null
    /// @param rModel the model, linked; it outlives the dialog
    /// @param rsModelName the model as gMakeDisplayName names it
    TParameterBrowserLibraryModelDetailsDlg(CWnd* pParent, const TModelData& rModel,
                                            const CStringU& rsModelName);

    bool OnInitDialog() override;

protected:
    [[nodiscard]] TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnExport();
    LRESULT OnSize(WPARAM wParam, LPARAM lParam);

    const TModelData* mpModelData;
    CStringU msModelName;
    TParamBrowserCustomTableCtrl mTable;
    CStringU msExportText;
};
