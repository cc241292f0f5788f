#include "platform/ui/TabOrder.h"

#include "platform/ui/Wnd.h"

#include <algorithm>

namespace
{
bool IsPane(const CWnd& rWnd)
{
    return !rWnd.GetChildren().empty();
}

bool IsStop(const CWnd& rWnd)
{
    if (!rWnd.CanTakeFocus())
        return false;
    return IsPane(rWnd) ? gNextTabStop(rWnd, nullptr, ETabDirection::Forward) != nullptr
                        : rWnd.IsTabStop();
}

bool IsPushButton(const CWnd& rWnd)
{
    return rWnd.GetKind() == EControl::PushButton || rWnd.GetKind() == EControl::DefaultButton;
}

/// The child of `rPane` that has the focus or holds it; null when it is elsewhere.
const CWnd* FocusedChildOf(const CWnd& rPane)
{
    const CWnd* pFrom = CWnd::GetFocus();
    while (pFrom && pFrom->GetParent() != &rPane)
        pFrom = pFrom->GetParent();
    return pFrom;
}

/// True when Tab from `pFrom` to `pNext` has passed the end of the pane.
bool HasWrapped(const CWnd& rPane, const CWnd* pFrom, const CWnd* pNext, ETabDirection direction)
{
    const auto& rChildren = rPane.GetChildren();
    const auto from = std::ranges::find(rChildren, pFrom);
    const auto next = std::ranges::find(rChildren, pNext);
    return direction == ETabDirection::Forward ? next <= from : next >= from;
}
} // namespace

CWnd* gNextTabStop(const CWnd& rPane, const CWnd* pFrom, ETabDirection direction)
{
    const auto& rChildren = rPane.GetChildren();
    const auto nCount = rChildren.size();
    const auto nFrom = static_cast<std::size_t>(std::ranges::find(rChildren, pFrom) -
                                                rChildren.begin()); // nCount when null
    const bool bForward = direction == ETabDirection::Forward;

    for (std::size_t nStep = 1; nStep <= nCount; ++nStep) {
        std::size_t nAt = 0;
        if (nFrom == nCount)
            nAt = bForward ? nStep - 1 : nCount - nStep;
        else
            nAt = (nFrom + (bForward ? nStep : nCount - nStep)) % nCount;
        if (IsStop(*rChildren[nAt]))
            return rChildren[nAt];
    }
    return nullptr;
}

CWnd* gFocusInPane(const CWnd& rPane)
{
    CWnd* const pLast = rPane.GetLastFocus();
    if (pLast && pLast->CanTakeFocus())
        return pLast;
    CWnd* const pFirst = gNextTabStop(rPane, nullptr, ETabDirection::Forward);
    return pFirst && IsPane(*pFirst) ? gFocusInPane(*pFirst) : pFirst;
}

CWnd* gFirstFieldOf(const CWnd& rDialog)
{
    for (CWnd* pChild : rDialog.GetChildren())
        if (!IsPane(*pChild) && !IsPushButton(*pChild) && IsStop(*pChild))
            return pChild;
    return gFocusInPane(rDialog);
}

void gMoveFocusRound(const CWnd& rPane, ETabDirection direction)
{
    const CWnd* const pFrom = FocusedChildOf(rPane);
    CWnd* const pNext = gNextTabStop(rPane, pFrom, direction);
    if (pNext && pNext == pFrom && IsPane(*pNext))
        gMoveFocusRound(*pNext, direction); // there is no other way out of it
    else if (pNext)
        pNext->SetFocus();
}

void gMoveFocusThrough(const CWnd& rDialog, ETabDirection direction)
{
    const CWnd* pFrom = CWnd::GetFocus();
    if (!pFrom || !pFrom->IsInside(rDialog) || pFrom == &rDialog) {
        gMoveFocusRound(rDialog, direction);
        return;
    }
    for (const CWnd* pPane = pFrom->GetParent(); pPane != &rDialog;
         pFrom = pPane, pPane = pPane->GetParent()) {
        CWnd* const pNext = gNextTabStop(*pPane, pFrom, direction);
        if (pNext && !HasWrapped(*pPane, pFrom, pNext, direction)) {
            pNext->SetFocus();
            return;
        }
    }
    gMoveFocusRound(rDialog, direction);
}
