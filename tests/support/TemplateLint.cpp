#include "support/TemplateLint.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string_view>

namespace
{
using TRows = std::vector<const TControlRow*>;
using TFindings = std::vector<std::string>;

std::string Name(const TControlRow& rRow)
{
    return "'" + std::string(rRow.pKey) + "' (" + std::to_string(rRow.nId) + ")";
}

bool HasOwnText(EControl kind)
{
    return kind == EControl::PushButton || kind == EControl::DefaultButton ||
           kind == EControl::CheckBox || kind == EControl::RadioButton || kind == EControl::Group;
}

bool IsTabStop(EControl kind)
{
    return gIsInput(kind) || kind == EControl::Tabs ||
           (HasOwnText(kind) && kind != EControl::Group);
}

/// A further button of a radio group. The group is one stop, where its first button stands, and its
/// buttons can head lines of fields that the stop leads past.
bool IsFurtherButton(const TControlRow& rRow)
{
    return rRow.kind == EControl::RadioButton && (rRow.nFlags & kFirstOfGroup) == 0;
}

bool HasPlaceInOrder(const TControlRow& rRow)
{
    return IsTabStop(rRow.kind) && !IsFurtherButton(rRow);
}

/// The least height in dialog units at which the kind's text isn't clipped; 0: no text of one line.
int LeastHeight(EControl kind)
{
    switch (kind) {
    case EControl::Label:
    case EControl::Static:
        return 9;
    case EControl::RadioButton:
    case EControl::CheckBox:
        return 12;
    case EControl::Edit:
    case EControl::DropDownList:
    case EControl::DropDown:
        return 13;
    case EControl::PushButton:
    case EControl::DefaultButton:
        return 14;
    case EControl::Group:
    case EControl::Frame:
    case EControl::MultilineEdit:
    case EControl::ListBox:
    case EControl::Tree:
    case EControl::Table:
    case EControl::Tabs:
        return 0;
    }
    return 0;
}

bool CanBeVisibleTogether(const TControlRow& rA, const TControlRow& rB)
{
    return rA.nLayers == 0 || rB.nLayers == 0 || (rA.nLayers & rB.nLayers) != 0;
}

void LintNames(const DialogTemplate& rTemplate, TFindings& rFindings)
{
    std::set<int> ids;
    std::set<std::string_view> keys;
    const TControlRow* pBefore = nullptr;
    for (const TControlRow& rRow : rTemplate.rows) {
        const std::string_view sKey = rRow.pKey;
        if (!ids.insert(rRow.nId).second)
            rFindings.push_back("the id of " + Name(rRow) + " is taken twice");
        if (sKey.empty() || sKey.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-") !=
                                std::string_view::npos)
            rFindings.push_back("the key of " + Name(rRow) + " isn't lower case with hyphens");

        const bool bRadio = rRow.kind == EControl::RadioButton;
        const bool bContinues =
            bRadio && pBefore && pBefore->kind == EControl::RadioButton && sKey == pBefore->pKey;
        if (bRadio && bContinues == ((rRow.nFlags & kFirstOfGroup) != 0))
            rFindings.push_back("the radio group of " + Name(rRow) +
                                " doesn't begin where its flag says");
        if (rRow.kind != EControl::Label && !bContinues && !keys.insert(sKey).second)
            rFindings.push_back("the key of " + Name(rRow) + " is taken twice");
        if (rRow.kind != EControl::Label)
            pBefore = &rRow;
    }
}

using TLabels = std::map<int, const TControlRow*>;

/// A field that shares the label of `pBefore`, the row before it, or null.
void LintSharedLabel(const TControlRow& rRow, const TControlRow* pBefore, const TLabels& rLabels,
                     TFindings& rFindings)
{
    const auto label = rLabels.find(pBefore ? LabelOf(pBefore->nId) : 0);
    if (label == rLabels.end())
        rFindings.push_back(Name(rRow) + " has no label to share in front of it");
    else if (CanBeVisibleTogether(*pBefore, rRow) || pBefore->rect.x != rRow.rect.x ||
             pBefore->rect.y != rRow.rect.y)
        rFindings.push_back(Name(rRow) + " isn't in the place of " + Name(*pBefore));
    else if (label->second->nLayers != 0 && (label->second->nLayers & rRow.nLayers) != rRow.nLayers)
        rFindings.push_back(Name(rRow) + " isn't always shown with the label it shares");
}

void LintLabels(const DialogTemplate& rTemplate, TFindings& rFindings)
{
    TLabels labels; // those in front of the row at hand
    const TControlRow* pBefore = nullptr;
    for (const TControlRow& rRow : rTemplate.rows) {
        if (rRow.kind == EControl::Label)
            labels[rRow.nId] = &rRow;
        if ((rRow.nFlags & kSharesLabel) != 0) {
            LintSharedLabel(rRow, pBefore, labels, rFindings);
            continue;
        }
        pBefore = &rRow;
        const bool bUnlabelled = (rRow.nFlags & kUnlabelled) != 0;
        bool bLabelled = *rRow.pLabel != 0;
        if (gIsInput(rRow.kind)) {
            const auto label = labels.find(LabelOf(rRow.nId));
            bLabelled = label != labels.end() && *label->second->pLabel != 0;
        } else if (!HasOwnText(rRow.kind)) {
            continue;
        }
        if (bLabelled == bUnlabelled)
            rFindings.push_back(Name(rRow) + (bUnlabelled ? " is declared without the label it has"
                                                          : " has no label in front of it"));
    }
    for (const TControlRow& rRow : rTemplate.rows) {
        if (rRow.kind != EControl::Label)
            continue;
        const bool bOwned = std::ranges::any_of(rTemplate.rows, [&rRow](const TControlRow& rField) {
            return (LabelOf(rField.nId) == rRow.nId || UnitOf(rField.nId) == rRow.nId) &&
                   std::string_view(rField.pKey) == rRow.pKey;
        });
        if (!bOwned)
            rFindings.push_back("label " + Name(rRow) + " belongs to no field");
    }
}

/// How far a rectangle reaches beyond one around it.
int Outside(const TRect& rWhole, const TRect& rRect)
{
    return std::max({rWhole.x - rRect.x, rWhole.y - rRect.y, rRect.Right() - rWhole.Right(),
                     rRect.Bottom() - rWhole.Bottom()});
}

void LintPlaces(const DialogTemplate& rTemplate, TFindings& rFindings)
{
    const TRect whole{0, 0, rTemplate.size.cx, rTemplate.size.cy};
    const auto rows = rTemplate.rows;
    for (std::size_t a = 0; a < rows.size(); ++a) {
        if (rows[a].rect.w <= 0 || rows[a].rect.h <= 0)
            rFindings.push_back(Name(rows[a]) + " is empty");
        if (const int nOutside = Outside(whole, rows[a].rect); nOutside > 0)
            rFindings.push_back(Name(rows[a]) + " reaches " + std::to_string(nOutside) +
                                " units beyond the dialog");
        if (rows[a].rect.h < LeastHeight(rows[a].kind))
            rFindings.push_back(Name(rows[a]) + " is too low for its text");
        for (std::size_t b = a + 1; b < rows.size(); ++b) {
            if (!rows[a].rect.Overlaps(rows[b].rect) || !CanBeVisibleTogether(rows[a], rows[b]))
                continue;
            const bool bSurrounds =
                (rows[a].kind == EControl::Group && rows[a].rect.Contains(rows[b].rect)) ||
                (rows[b].kind == EControl::Group && rows[b].rect.Contains(rows[a].rect));
            if (!bSurrounds)
                rFindings.push_back(Name(rows[a]) + " and " + Name(rows[b]) + " overlap");
        }
    }
}

/// Lines (or columns) of what begins at nearly the same height (or edge), each in order.
template <class TAcross, class TAlong> void SortInLines(TRows& rRows, TAcross across, TAlong along)
{
    constexpr int kSameLine = 6;
    std::ranges::stable_sort(rRows, {}, across);
    for (auto line = rRows.begin(); line != rRows.end();) {
        const int nStart = across(*line);
        const auto end = std::find_if(line, rRows.end(), [&](const TControlRow* pRow) {
            return across(pRow) - nStart >= kSameLine;
        });
        std::stable_sort(line, end, [&](const TControlRow* pA, const TControlRow* pB) {
            return along(pA) < along(pB);
        });
        line = end;
    }
}

/// The tab stops in reading order. A group is read where it stands, and all of it before what
/// follows.
TRows ReadingOrder(const DialogTemplate& rTemplate, bool bColumns)
{
    const auto left = [](const TControlRow* p) { return p->rect.x; };
    const auto top = [](const TControlRow* p) { return p->rect.y; };
    const auto sort = [&](TRows& rRows) {
        if (bColumns)
            SortInLines(rRows, left, top);
        else
            SortInLines(rRows, top, left);
    };

    TRows groups;
    for (const TControlRow& rRow : rTemplate.rows)
        if (rRow.kind == EControl::Group)
            groups.push_back(&rRow);
    // The smallest group around a row, or null.
    const auto around = [&groups](const TControlRow& rRow) {
        const TControlRow* pInnermost = nullptr;
        for (const TControlRow* pGroup : groups)
            if (pGroup != &rRow && pGroup->rect.Contains(rRow.rect) &&
                CanBeVisibleTogether(*pGroup, rRow) &&
                (!pInnermost || pInnermost->rect.Contains(pGroup->rect)))
                pInnermost = pGroup;
        return pInnermost;
    };
    std::map<const TControlRow*, TRows> inside;
    for (const TControlRow& rRow : rTemplate.rows)
        if (HasPlaceInOrder(rRow) || rRow.kind == EControl::Group)
            inside[around(rRow)].push_back(&rRow);
    TRows order;
    const std::function<void(const TControlRow*)> read = [&](const TControlRow* pAround) {
        TRows rows = inside[pAround];
        sort(rows);
        for (const TControlRow* pRow : rows)
            if (pRow->kind == EControl::Group)
                read(pRow);
            else
                order.push_back(pRow);
    };
    read(nullptr);
    return order;
}

bool IsRotation(TRows order, const TRows& rWanted)
{
    for (std::size_t n = 0; n < order.size(); ++n) {
        if (order == rWanted)
            return true;
        std::rotate(order.begin(), order.begin() + 1, order.end());
    }
    return order == rWanted;
}

/// What is wrong with the order of the tab stops, or an empty text.
std::string OrderFinding(const DialogTemplate& rTemplate)
{
    TRows order;
    for (const TControlRow& rRow : rTemplate.rows)
        if (HasPlaceInOrder(rRow))
            order.push_back(&rRow);
    const TRows wanted = ReadingOrder(rTemplate, false);
    if (IsRotation(order, wanted) || IsRotation(order, ReadingOrder(rTemplate, true)))
        return {};
    std::string sFinding = "the tab order isn't the reading order:";
    for (const TControlRow* pRow : wanted)
        sFinding += ' ' + Name(*pRow);
    return sFinding;
}

/// Arrow keys walk through a radio group from button to button.
void LintButtonOrder(const DialogTemplate& rTemplate, TFindings& rFindings)
{
    const TControlRow* pBefore = nullptr;
    for (const TControlRow& rRow : rTemplate.rows) {
        if (rRow.kind != EControl::RadioButton)
            continue;
        if (pBefore && IsFurtherButton(rRow) && rRow.rect.y <= pBefore->rect.y &&
            rRow.rect.x <= pBefore->rect.x)
            rFindings.push_back(Name(rRow) + " stands before the button in front of it");
        pBefore = &rRow;
    }
}

void LintTabOrder(const DialogTemplate& rTemplate, TFindings& rFindings)
{
    unsigned nLayers = 0;
    for (const TControlRow& rRow : rTemplate.rows)
        nLayers |= rRow.nLayers;
    // Layer by layer: what is never seen together has no order.
    for (unsigned nLayer = 1; nLayer != 0 && (nLayer == 1 || nLayer <= nLayers); nLayer <<= 1) {
        std::vector<TControlRow> rows;
        for (const TControlRow& rRow : rTemplate.rows)
            if (rRow.nLayers == 0 || (rRow.nLayers & nLayer) != 0)
                rows.push_back(rRow);
        std::string sFinding = OrderFinding({rTemplate.pCaption, rTemplate.size, rows});
        if (!sFinding.empty()) {
            rFindings.push_back(std::move(sFinding));
            return;
        }
    }
}
} // namespace

std::vector<std::string> gLintTemplate(const DialogTemplate& rTemplate)
{
    TFindings findings;
    LintNames(rTemplate, findings);
    LintLabels(rTemplate, findings);
    LintPlaces(rTemplate, findings);
    LintButtonOrder(rTemplate, findings);
    LintTabOrder(rTemplate, findings);
    return findings;
}
