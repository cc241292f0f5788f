#pragma once

#include "browser/ParameterBrowserParamDetailsTab.h"
#include "foundation/StringU.h"
#include "params/DeviceData.h"
#include "platform/ui/ResizeDialog.h"

/// The sheet of one device: the parameters of its model, if it has one, and its own.
class TParameterBrowserDeviceDetailsDlg : public CXTPResizePropertySheet
{
public:
    /// @param pParent the window that owns it, may be null
    /// @param rsTitle what gMakeDeviceTitle says of the device
    /// @param rDevice the device, linked; not needed afterwards
    /// @param bAllowReevaluate whether the user can ask for another evaluation
    TParameterBrowserDeviceDetailsDlg(CWnd* pParent, const CStringU& rsTitle,
                                      const TDeviceData& rDevice, bool bAllowReevaluate);

    /// Whether the user has asked for another evaluation.
    [[nodiscard]] bool WantsReevaluate() const noexcept { return mbReevaluate; }

    bool OnInitDialog() override;

protected:
    [[nodiscard]] TMessageMap GetMessageMap() const override;

private:
    void OnReevaluate();
    void OnExport();
    void OnClose();

    TParameterBrowserParamDetailsTab mDeviceTab;
    TParameterBrowserParamDetailsTab mModelTab;
    bool mbAllowReevaluate;
    bool mbReevaluate = false;
};
