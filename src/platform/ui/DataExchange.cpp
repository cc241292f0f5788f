#include "platform/ui/DataExchange.h"

#include "platform/base/Exceptions.h"
#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/Wnd.h"

namespace
{
template <class TControl> TControl& ControlAs(const CDataExchange& rDX, int nId)
{
    auto* const pControl = dynamic_cast<TControl*>(&rDX.GetControl(nId));
    if (!pControl)
        gThrowInvalidArg("data exchange: the control is of another kind");
    return *pControl;
}
} // namespace

CWnd& CDataExchange::GetControl(int nId) const
{
    CWnd* const pControl = mrWnd.GetDlgItem(nId);
    if (!pControl)
        gThrowInvalidArg("data exchange: no control has this id");
    return *pControl;
}

void CDataExchange::Bind(int nId, CWnd& rControl)
{
    for (const auto& [nBoundId, pBound] : mBindings)
        if (nBoundId == nId || pBound == &rControl)
            gThrowInvalidArg("data exchange: a control is bound twice");
    mBindings.emplace_back(nId, &rControl);
}

void DDX_Control(CDataExchange* pDX, int nId, CWnd& rControl)
{
    if (pDX->GetMode() == EDataExchange::Bind)
        pDX->Bind(nId, rControl);
}

void DDX_Text(CDataExchange* pDX, int nId, CString& rsValue)
{
    if (pDX->GetMode() == EDataExchange::Bind)
        return;
    CWnd& rControl = pDX->GetControl(nId);
    if (pDX->IsSaving())
        rsValue = rControl.GetWindowText();
    else if (rControl.GetWindowText() != rsValue)
        rControl.SetWindowText(rsValue);
}

void DDX_Check(CDataExchange* pDX, int nId, int& rnValue)
{
    if (pDX->GetMode() == EDataExchange::Bind)
        return;
    auto& rButton = ControlAs<CButton>(*pDX, nId);
    if (pDX->IsSaving())
        rnValue = rButton.GetCheck();
    else
        rButton.SetCheck(rnValue != 0);
}

void DDX_CBString(CDataExchange* pDX, int nId, CString& rsValue)
{
    if (pDX->GetMode() == EDataExchange::Bind)
        return;
    auto& rCombo = ControlAs<CComboBox>(*pDX, nId);
    if (pDX->IsSaving())
        rsValue = rCombo.GetWindowText();
    else
        rCombo.SelectText(rsValue);
}
