#include "platform/ui/FieldView.h"

#include "platform/ui/Button.h"

#include <algorithm>

namespace
{
bool IsField(const CWnd& rWnd)
{
    return *rWnd.GetKey() && rWnd.GetKind() != EControl::Label && rWnd.GetKind() != EControl::Frame;
}
} // namespace

CWnd* gLabelOf(const CWnd& rField)
{
    const CWnd* const pPane = rField.GetParent();
    if (!pPane)
        return nullptr;
    if (CWnd* const pLabel = pPane->GetDlgItem(LabelOf(rField.GetDlgCtrlID())))
        return pLabel;
    const auto& rSiblings = pPane->GetChildren();
    const auto field = std::ranges::find(rSiblings, &rField);
    if (field == rSiblings.begin() || field == rSiblings.end())
        return nullptr;
    CWnd* const pBefore = *std::prev(field);
    if (rField.GetControlFlags() & kSharesLabel)
        return gLabelOf(*pBefore);
    return gIsInput(rField.GetKind()) && pBefore->GetKind() == EControl::Group ? pBefore : nullptr;
}

std::vector<TFieldView> gCollectFields(const CWnd& rPane)
{
    std::vector<TFieldView> fields;
    for (CWnd* pChild : rPane.GetChildren()) {
        if (!IsField(*pChild))
            continue;
        auto* const pButton = dynamic_cast<CButton*>(pChild);
        const bool bRadio = pButton && pButton->IsRadio();
        if (bRadio && !fields.empty() && fields.back().sKey == pChild->GetKey()) {
            fields.back().radios.push_back(pButton);
            continue;
        }
        const int nId = pChild->GetDlgCtrlID();
        TFieldView field{pChild->GetKey(), pChild->GetKind(), pChild, {}, nullptr, nullptr};
        if (bRadio)
            field.radios.push_back(pButton);
        field.pLabel = gLabelOf(*pChild);
        field.pUnit = rPane.GetDlgItem(UnitOf(nId));
        fields.push_back(std::move(field));
    }
    return fields;
}

CDialog& gCurrentPane(CDialog& rDialog)
{
    for (CWnd* pChild : rDialog.GetChildren())
        if (auto* const pPane = dynamic_cast<CDialog*>(pChild); pPane && pPane->IsShown())
            return *pPane;
    return rDialog;
}

TFieldView gFindField(CDialog& rDialog, std::string_view sKey)
{
    const TFieldView inPane = gFindOwnField(gCurrentPane(rDialog), sKey);
    return inPane.pControl ? inPane : gFindOwnField(rDialog, sKey);
}

TFieldView gFindOwnField(CDialog& rDialog, std::string_view sKey)
{
    const std::vector<TFieldView> fields = gCollectFields(rDialog);
    const auto found = std::ranges::find(fields, sKey, &TFieldView::sKey);
    return found == fields.end() ? TFieldView() : *found;
}
