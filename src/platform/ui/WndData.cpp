#include "platform/ui/Button.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Wnd.h"

#include <utility>

// What a window does with all its controls at once.

bool CWnd::UpdateData(bool bSaveAndValidate)
{
    if (!mbCreated)
        return false;

    class CUpdateLock
    {
    public:
        explicit CUpdateLock(bool& rFlag) : mrFlag(rFlag), mbBefore(std::exchange(rFlag, true)) {}
        ~CUpdateLock() { mrFlag = mbBefore; }
        CUpdateLock(const CUpdateLock&) = delete;
        CUpdateLock& operator=(const CUpdateLock&) = delete;

    private:
        bool& mrFlag;
        bool mbBefore;
    };
    const CUpdateLock lock(mbUpdatingData);
    CDataExchange exchange(*this, bSaveAndValidate ? EDataExchange::Save : EDataExchange::Load);
    DoDataExchange(&exchange);
    return true;
}

// The platform walks the ids from first to last, whatever stands between them.

void CWnd::CheckRadioButton(int nFirst, int nLast, int nChecked)
{
    for (CWnd* pChild : mChildren) {
        const int nId = pChild->GetDlgCtrlID();
        auto* const pButton = dynamic_cast<CButton*>(pChild);
        if (pButton && nId >= nFirst && nId <= nLast)
            pButton->SetCheck(nId == nChecked);
    }
}

int CWnd::GetCheckedRadioButton(int nFirst, int nLast) const
{
    for (const CWnd* pChild : mChildren) {
        const int nId = pChild->GetDlgCtrlID();
        const auto* const pButton = dynamic_cast<const CButton*>(pChild);
        if (pButton && nId >= nFirst && nId <= nLast && pButton->GetCheck() != 0)
            return nId;
    }
    return 0;
}
