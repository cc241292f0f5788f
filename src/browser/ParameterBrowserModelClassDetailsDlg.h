#pragma once

#include "browser/ClassParamRows.h"
#include "browser/ParameterBrowserParamDetailsTab.h"
#include "foundation/StringU.h"
#include "platform/ui/ResizeDialog.h"

/// The sheet of one model class: the defaults of its model, device and state parameters.
class TParameterBrowserModelClassDetailsDlg : public CXTPResizePropertySheet
{
public:
    /// @param pParent the window that owns it, may be null
    /// @param rsClass the name of the class
    /// @param rRows the parameters (gMakeClassParamRows); not needed afterwards
    TParameterBrowserModelClassDetailsDlg(CWnd* pParent, const CStringU& rsClass,
                                          const TClassParamRows& rRows);

    bool OnInitDialog() override;

protected:
    [[nodiscard]] TMessageMap GetMessageMap() const override;

private:
    void OnExport();
    void OnClose();

    TParameterBrowserParamDetailsTab mDeviceTab;
    TParameterBrowserParamDetailsTab mModelTab;
    TParameterBrowserParamDetailsTab mStateTab;
};
