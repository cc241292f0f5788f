#include "platform/ui/DialogTemplate.h"

std::string_view gControlName(EControl kind)
{
    switch (kind) {
    case EControl::Label:
        return "label";
    case EControl::Static:
        return "static";
    case EControl::Group:
        return "group";
    case EControl::Frame:
        return "frame";
    case EControl::Edit:
        return "edit";
    case EControl::MultilineEdit:
        return "multi-line-edit";
    case EControl::PushButton:
    case EControl::DefaultButton:
        return "button";
    case EControl::CheckBox:
        return "check-box";
    case EControl::RadioButton:
        return "radio";
    case EControl::DropDownList:
        return "drop-down-list";
    case EControl::DropDown:
        return "drop-down";
    case EControl::ListBox:
        return "list-box";
    case EControl::Tree:
        return "tree";
    case EControl::Table:
        return "table";
    case EControl::Tabs:
        return "tabs";
    }
    return {};
}
