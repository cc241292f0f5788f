#include "platform/ui/MakeControl.h"

#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/Edit.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/Static.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TreeCtrl.h"

std::unique_ptr<CWnd> gMakeControl(EControl kind)
{
    switch (kind) {
    case EControl::Label:
    case EControl::Static:
    case EControl::Frame:
        return std::make_unique<CStatic>();
    case EControl::Edit:
    case EControl::MultilineEdit:
        return std::make_unique<CEdit>();
    case EControl::Group:
    case EControl::PushButton:
    case EControl::DefaultButton:
    case EControl::CheckBox:
    case EControl::RadioButton:
        return std::make_unique<CButton>();
    case EControl::DropDownList:
    case EControl::DropDown:
        return std::make_unique<CComboBox>();
    case EControl::ListBox:
        return std::make_unique<CListBox>();
    case EControl::Tree:
        return std::make_unique<CTreeCtrl>();
    case EControl::Table:
        return std::make_unique<CListCtrl>();
    case EControl::Tabs:
        return std::make_unique<CTabCtrl>();
    }
    return nullptr;
}
