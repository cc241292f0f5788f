#include "cli/ShownFields.h"

#include "platform/base/Utf8Text.h"
#include "platform/headless/TreePath.h"
#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TreeCtrl.h"
#include "wizard/frame/TreeDlg.h"

#include <algorithm>
#include <span>

namespace quorvawiz::cli
{
namespace
{
std::vector<std::string> ToUtf8(std::span<const CString> items)
{
    std::vector<std::string> texts(items.size());
    std::ranges::transform(items, texts.begin(), gToUtf8);
    return texts;
}

void CollectPaths(const CTreeCtrl& rTree, HTREEITEM hFirst, std::vector<std::string>& rPaths)
{
    for (HTREEITEM hItem = hFirst; hItem; hItem = rTree.GetNextSiblingItem(hItem)) {
        rPaths.push_back(gToUtf8(gTreePathOf(rTree, hItem)));
        CollectPaths(rTree, rTree.GetChildItem(hItem), rPaths);
    }
}
} // namespace

std::vector<TFieldView> gShownFields(CDialog& rDialog)
{
    CDialog& rPane = gCurrentPane(rDialog);
    const bool bFrame = dynamic_cast<CTreeDlg*>(&rDialog) != nullptr;
    std::vector<TFieldView> fields;
    if (&rPane != &rDialog)
        fields = gCollectFields(rPane);
    if (!bFrame) {
        const auto around = gCollectFields(rDialog);
        fields.insert(fields.end(), around.begin(), around.end());
    }
    return fields;
}

bool gIsUsable(const TFieldView& rField)
{
    const auto isUsable = [](const CWnd* p) { return p->IsUsable() && p->IsWindowVisible(); };
    return rField.radios.empty() ? isUsable(rField.pControl)
                                 : std::ranges::any_of(rField.radios, isUsable);
}

std::vector<std::string> gKeysToActOn(const std::vector<TFieldView>& rFields)
{
    std::vector<std::string> keys;
    for (const TFieldView& rField : rFields)
        if (rField.kind != EControl::Static && rField.kind != EControl::Group)
            keys.emplace_back(rField.sKey);
    return keys;
}

std::vector<std::string> gEntriesOf(const TFieldView& rField)
{
    if (const auto* const pCombo = dynamic_cast<CComboBox*>(rField.pControl))
        return ToUtf8(pCombo->GetItems());
    if (const auto* const pList = dynamic_cast<CListBox*>(rField.pControl))
        return ToUtf8(pList->GetItems());
    if (const auto* const pTabs = dynamic_cast<CTabCtrl*>(rField.pControl))
        return ToUtf8(pTabs->GetItems());
    if (const auto* const pTree = dynamic_cast<CTreeCtrl*>(rField.pControl))
        return gNodePathsOf(*pTree);
    std::vector<std::string> labels;
    for (const CButton* pRadio : rField.radios)
        labels.push_back(gWithoutMnemonic(gToUtf8(pRadio->GetWindowText())));
    return labels;
}

int gEntryCountOf(const TFieldView& rField)
{
    if (const auto* const pTable = dynamic_cast<CListCtrl*>(rField.pControl))
        return pTable->GetItemCount();
    return static_cast<int>(gEntriesOf(rField).size());
}

int gSelectionOf(const TFieldView& rField)
{
    if (const auto* const pCombo = dynamic_cast<CComboBox*>(rField.pControl))
        return pCombo->GetCurSel();
    if (const auto* const pList = dynamic_cast<CListBox*>(rField.pControl))
        return pList->GetCurSel();
    if (const auto* const pTable = dynamic_cast<CListCtrl*>(rField.pControl))
        return pTable->GetSelectedRow();
    if (const auto* const pTabs = dynamic_cast<CTabCtrl*>(rField.pControl))
        return pTabs->GetCurSel();
    const auto checked =
        std::ranges::find_if(rField.radios, [](const CButton* p) { return p->GetCheck() != 0; });
    return checked == rField.radios.end() ? -1 : static_cast<int>(checked - rField.radios.begin());
}

std::string gWithoutMnemonic(std::string_view sLabel)
{
    std::string sPlain;
    for (std::size_t n = 0; n < sLabel.size(); ++n) {
        // "&&" shows one '&'.
        if (sLabel[n] == '&' && ++n == sLabel.size())
            break;
        sPlain += sLabel[n];
    }
    return sPlain;
}

std::vector<std::string> gNodePathsOf(const CTreeCtrl& rTree)
{
    std::vector<std::string> paths;
    CollectPaths(rTree, rTree.GetRootItem(), paths);
    return paths;
}

} // namespace quorvawiz::cli
