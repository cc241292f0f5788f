#include "platform/ui/Fields.h"

#include <initializer_list>

namespace
{
template <class TAction> void ForFieldParts(const CWnd& rPane, int nId, TAction action)
{
    for (const int nPart : {LabelOf(nId), nId, UnitOf(nId)})
        if (CWnd* const pPart = rPane.GetDlgItem(nPart))
            action(*pPart);
}
} // namespace

void gEnableField(CWnd& rPane, int nId, bool bEnable)
{
    ForFieldParts(rPane, nId, [bEnable](CWnd& rPart) { rPart.EnableWindow(bEnable); });
}

void gShowField(CWnd& rPane, int nId, bool bShow)
{
    ForFieldParts(rPane, nId,
                  [bShow](CWnd& rPart) { rPart.ShowWindow(bShow ? SW_SHOW : SW_HIDE); });
}

void gSetFieldLabel(CWnd& rPane, int nId, const CString& rsLabel)
{
    if (CWnd* const pLabel = rPane.GetDlgItem(LabelOf(nId)))
        pLabel->SetWindowText(rsLabel);
}

void gShowLayers(CWnd& rPane, unsigned nMask)
{
    // A copy: a handler that runs on the way may change the order of the children.
    std::vector<CWnd*> children(rPane.GetChildren());
    for (CWnd* pChild : children)
        if (pChild->GetLayers() != 0)
            pChild->ShowWindow(pChild->GetLayers() & nMask ? SW_SHOW : SW_HIDE);
}
