#include "platform/qt/MakePeer.h"

#include "platform/qt/Binders.h"
#include "platform/qt/DialogPeer.h"
#include "platform/ui/Dialog.h"

namespace
{
std::unique_ptr<CQtPeer> BindControl(QtDesktop& rDesktop, CWnd& rWnd)
{
    switch (rWnd.GetKind()) {
    case EControl::Label:
    case EControl::Static:
        return gBindLabel(rDesktop, rWnd);
    case EControl::Group:
        return gBindGroup(rDesktop, rWnd);
    case EControl::Frame:
        return gBindFrame(rDesktop, rWnd);
    case EControl::Edit:
        return gBindEdit(rDesktop, rWnd);
    case EControl::MultilineEdit:
        return gBindMultilineEdit(rDesktop, rWnd);
    case EControl::PushButton:
    case EControl::DefaultButton:
        return gBindButton(rDesktop, rWnd);
    case EControl::CheckBox:
        return gBindCheckBox(rDesktop, rWnd);
    case EControl::RadioButton:
        return gBindRadio(rDesktop, rWnd);
    case EControl::DropDownList:
    case EControl::DropDown:
        return gBindCombo(rDesktop, rWnd);
    case EControl::ListBox:
        return gBindList(rDesktop, rWnd);
    case EControl::Tree:
        return gBindTree(rDesktop, rWnd);
    case EControl::Table:
        return gBindTable(rDesktop, rWnd);
    case EControl::Tabs:
        return gBindTabs(rDesktop, rWnd);
    }
    return nullptr;
}

std::unique_ptr<CQtPeer> Bind(QtDesktop& rDesktop, CWnd& rWnd)
{
    auto* const pDialog = dynamic_cast<CDialog*>(&rWnd);
    if (pDialog && !pDialog->GetParent())
        return std::make_unique<CDialogPeer>(rDesktop, *pDialog);
    if (!gParentWidgetOf(rWnd))
        return nullptr;
    return pDialog ? gBindPane(rDesktop, rWnd) : BindControl(rDesktop, rWnd);
}
} // namespace

std::unique_ptr<IWindowPeer> gMakePeer(QtDesktop& rDesktop, CWnd& rWnd)
{
    std::unique_ptr<CQtPeer> pPeer = Bind(rDesktop, rWnd);
    if (pPeer)
        pPeer->PullFirst();
    return pPeer;
}
