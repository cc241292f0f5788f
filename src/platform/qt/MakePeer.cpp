#include "platform/qt/MakePeer.h"

#include "platform/qt/Binders.h"
#include "platform/qt/DialogPeer.h"
#include "platform/ui/Dialog.h"

namespace
{
std::unique_ptr<CQtPeer> BindControl(CModelEntry& rEntry, CWnd& rWnd)
{
    switch (rWnd.GetKind()) {
    case EControl::Label:
    case EControl::Static:
        return gBindLabel(rEntry, rWnd);
    case EControl::Group:
        return gBindGroup(rEntry, rWnd);
    case EControl::Frame:
        return gBindFrame(rEntry, rWnd);
    case EControl::Edit:
        return gBindEdit(rEntry, rWnd);
    case EControl::MultilineEdit:
        return gBindMultilineEdit(rEntry, rWnd);
    case EControl::PushButton:
    case EControl::DefaultButton:
        return gBindButton(rEntry, rWnd);
    case EControl::CheckBox:
        return gBindCheckBox(rEntry, rWnd);
    case EControl::RadioButton:
        return gBindRadio(rEntry, rWnd);
    case EControl::DropDownList:
    case EControl::DropDown:
        return gBindCombo(rEntry, rWnd);
    case EControl::ListBox:
        return gBindList(rEntry, rWnd);
    case EControl::Tree:
        return gBindTree(rEntry, rWnd);
    case EControl::Table:
        return gBindTable(rEntry, rWnd);
    case EControl::Tabs:
        return gBindTabs(rEntry, rWnd);
    }
    return nullptr;
}

std::unique_ptr<CQtPeer> Bind(CModelEntry& rEntry, CWnd& rWnd)
{
    auto* const pDialog = dynamic_cast<CDialog*>(&rWnd);
    if (pDialog && !pDialog->GetParent())
        return std::make_unique<CDialogPeer>(rEntry, *pDialog);
    if (!gParentWidgetOf(rWnd))
        return nullptr;
    return pDialog ? gBindPane(rEntry, rWnd) : BindControl(rEntry, rWnd);
}
} // namespace

std::unique_ptr<IWindowPeer> gMakePeer(CModelEntry& rEntry, CWnd& rWnd)
{
    std::unique_ptr<CQtPeer> pPeer = Bind(rEntry, rWnd);
    if (pPeer)
        pPeer->PullFirst();
    return pPeer;
}
