#include "platform/ui/Mnemonics.h"

#include "platform/ui/Button.h"
#include "platform/ui/Dialog.h"

#include <algorithm>

namespace
{
char ToLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// A label's own field if the ids tell it, or that which shares the label and is shown in its
/// place; else the first tab stop behind the label or group.
CWnd* FieldBehind(const CWnd& rPane, std::size_t nLabel)
{
    const auto& rSiblings = rPane.GetChildren();
    const int nId = rSiblings[nLabel]->GetDlgCtrlID();
    const auto own = std::ranges::find_if(
        rSiblings, [nId](const CWnd* p) { return LabelOf(p->GetDlgCtrlID()) == nId; });
    if (own != rSiblings.end()) {
        if (auto* const pButton = dynamic_cast<CButton*>(*own))
            return &pButton->GetGroupEntry();
        const auto next = std::next(own);
        const bool bShared = next != rSiblings.end() && (*next)->GetControlFlags() & kSharesLabel;
        return bShared && (*next)->CanTakeFocus() ? *next : *own;
    }
    for (std::size_t n = nLabel + 1; n < rSiblings.size(); ++n)
        if (rSiblings[n]->CanTakeFocus() && rSiblings[n]->IsTabStop())
            return rSiblings[n];
    return nullptr;
}

void CollectTargets(const CWnd& rPane, char cLetter, std::vector<CWnd*>& rTargets)
{
    const auto& rChildren = rPane.GetChildren();
    for (std::size_t n = 0; n < rChildren.size(); ++n) {
        CWnd& rChild = *rChildren[n];
        if (!rChild.CanTakeFocus())
            continue;
        if (dynamic_cast<CDialog*>(&rChild)) {
            CollectTargets(rChild, cLetter, rTargets);
            continue;
        }
        // What the user typed is no label.
        const bool bButton = dynamic_cast<CButton*>(&rChild) && rChild.GetKind() != EControl::Group;
        const bool bLabel =
            rChild.GetKind() == EControl::Label || rChild.GetKind() == EControl::Group;
        if ((!bButton && !bLabel) || gMnemonicOf(rChild.GetWindowText().GetString()) != cLetter)
            continue;
        CWnd* const pTarget = bButton ? &rChild : FieldBehind(rPane, n);
        if (pTarget && pTarget->CanTakeFocus())
            rTargets.push_back(pTarget);
    }
}
} // namespace

char gMnemonicOf(const char* pText)
{
    for (const char* p = pText; *p; ++p) {
        if (*p != '&')
            continue;
        if (*++p != '&')
            return ToLower(*p);
    }
    return 0;
}

std::vector<CWnd*> gMnemonicTargets(const CDialog& rDialog, char cLetter)
{
    std::vector<CWnd*> targets;
    if (cLetter != 0)
        CollectTargets(rDialog, ToLower(cLetter), targets);
    return targets;
}

EUserResult gPressMnemonic(CDialog& rDialog, char cLetter)
{
    const auto targets = gMnemonicTargets(rDialog, cLetter);
    if (targets.empty())
        return EUserResult::Ignored;
    if (targets.size() == 1) {
        // A label or group in front of a button leads to it and doesn't press it.
        auto* const pButton = dynamic_cast<CButton*>(targets.front());
        if (pButton && gMnemonicOf(pButton->GetWindowText().GetString()) == ToLower(cLetter))
            return pButton->UserClick();
        return targets.front()->AcceptUser();
    }
    auto next = std::ranges::find(targets, CWnd::GetFocus());
    if (next == targets.end() || ++next == targets.end())
        next = targets.begin();
    return (*next)->AcceptUser();
}
