#include "cli/FieldJson.h"

#include "cli/ShownFields.h"
#include "platform/base/Utf8Text.h"
#include "platform/headless/TreePath.h"
#include "platform/ui/Button.h"
#include "platform/ui/TableCtrl.h"
#include "platform/ui/TreeCtrl.h"

#include <nlohmann/json.hpp>

namespace quorvawiz::cli
{
namespace
{
TJson TextOf(const CWnd* pWnd)
{
    return pWnd ? TJson(gToUtf8(pWnd->GetWindowText())) : TJson();
}

bool CarriesItsLabel(EControl kind)
{
    return kind == EControl::PushButton || kind == EControl::DefaultButton ||
           kind == EControl::CheckBox || kind == EControl::Group;
}

TJson RadioButtons(const TFieldView& rField)
{
    TJson buttons = TJson::array();
    for (const CButton* pRadio : rField.radios)
        buttons.push_back({{"label", TextOf(pRadio)},
                           {"enabled", pRadio->IsUsable()},
                           {"visible", pRadio->IsWindowVisible()}});
    return buttons;
}

void AddTable(const CListCtrl& rTable, TJson& rJson)
{
    rJson["columns"] = TJson::array();
    for (const TListColumn& rColumn : rTable.GetColumns())
        rJson["columns"].push_back(gToUtf8(rColumn.sHeading));
    // A grid may have a million rows, which are asked for in parts.
    if (dynamic_cast<const CTableCtrl*>(&rTable)) {
        rJson["rows"] = rTable.GetItemCount();
        return;
    }
    rJson["items"] = TJson::array();
    for (int nRow = 0; nRow < rTable.GetItemCount(); ++nRow) {
        TJson cells = TJson::array();
        for (int nColumn = 0; nColumn < rTable.GetColumnCount(); ++nColumn)
            cells.push_back(gToUtf8(rTable.GetItemText(nRow, nColumn)));
        rJson["items"].push_back(std::move(cells));
    }
}

/// What the field holds, by its kind.
void AddContent(const TFieldView& rField, TJson& rJson)
{
    switch (rField.kind) {
    case EControl::Edit:
    case EControl::MultilineEdit:
    case EControl::Static:
    case EControl::Group:
    case EControl::Label:
    case EControl::Frame:
        rJson["text"] = TextOf(rField.pControl);
        break;
    case EControl::DropDownList:
    case EControl::DropDown:
        rJson["text"] = TextOf(rField.pControl);
        rJson["index"] = gSelectionOf(rField);
        rJson["items"] = gEntriesOf(rField);
        break;
    case EControl::ListBox:
    case EControl::Tabs:
        rJson["index"] = gSelectionOf(rField);
        rJson["items"] = gEntriesOf(rField);
        break;
    case EControl::CheckBox:
        rJson["on"] = dynamic_cast<const CButton&>(*rField.pControl).GetCheck() != 0;
        break;
    case EControl::RadioButton:
        rJson["index"] = gSelectionOf(rField);
        rJson["buttons"] = RadioButtons(rField);
        break;
    case EControl::Table:
        rJson["index"] = gSelectionOf(rField);
        AddTable(dynamic_cast<const CListCtrl&>(*rField.pControl), rJson);
        break;
    case EControl::Tree:
        rJson.update(gTreeToJson(dynamic_cast<const CTreeCtrl&>(*rField.pControl)));
        rJson["items"] = gEntriesOf(rField);
        break;
    case EControl::PushButton:
    case EControl::DefaultButton:
        break;
    }
}

bool IsEnabled(const TFieldView& rField)
{
    const auto isUsable = [](const CWnd* p) { return p->IsUsable(); };
    return rField.radios.empty() ? isUsable(rField.pControl)
                                 : std::ranges::any_of(rField.radios, isUsable);
}

bool IsVisible(const TFieldView& rField)
{
    const auto isVisible = [](const CWnd* p) { return p->IsWindowVisible(); };
    return rField.radios.empty() ? isVisible(rField.pControl)
                                 : std::ranges::any_of(rField.radios, isVisible);
}

void CollectExpanded(const CTreeCtrl& rTree, HTREEITEM hFirst, TJson& rPaths)
{
    for (HTREEITEM hItem = hFirst; hItem; hItem = rTree.GetNextSiblingItem(hItem)) {
        if (rTree.IsExpanded(hItem))
            rPaths.push_back(gToUtf8(gTreePathOf(rTree, hItem)));
        CollectExpanded(rTree, rTree.GetChildItem(hItem), rPaths);
    }
}
} // namespace

TJson gFieldToJson(const TFieldView& rField)
{
    TJson json = {{"kind", gControlName(rField.kind)}};
    if (rField.kind != EControl::Static)
        json["label"] = TextOf(CarriesItsLabel(rField.kind) ? rField.pControl : rField.pLabel);
    AddContent(rField, json);
    if (rField.pUnit)
        json["unit"] = TextOf(rField.pUnit);
    if (rField.pControl->GetControlFlags() & kReadOnly)
        json["read_only"] = true;
    json["enabled"] = IsEnabled(rField);
    json["visible"] = IsVisible(rField);
    return json;
}

TJson gTreeToJson(const CTreeCtrl& rTree)
{
    const HTREEITEM hSelected = rTree.GetSelectedItem();
    TJson expanded = TJson::array();
    CollectExpanded(rTree, rTree.GetRootItem(), expanded);
    return {{"selected", hSelected ? TJson(gToUtf8(gTreePathOf(rTree, hSelected))) : TJson()},
            {"expanded", std::move(expanded)}};
}

std::string gToLine(const TJson& rValue)
{
    return rValue.dump(-1, ' ', false, TJson::error_handler_t::replace);
}

} // namespace quorvawiz::cli
