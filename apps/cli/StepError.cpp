#include "cli/StepError.h"

#include "cli/Quote.h"
#include "cli/ShownFields.h"
#include "cli/Suggest.h"
#include "platform/base/Utf8Text.h"
#include "platform/ui/Button.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
std::string UnknownEntry(const TFieldView& rField, const TStep& rStep, const std::string& sField)
{
    const std::vector<std::string> entries = gEntriesOf(rField);
    switch (rStep.op) {
    case EStep::SelectEntry: {
        const std::string sText = gToUtf8(rStep.sText);
        return sField + " has no entry " + gQuoted(sText) + gDidYouMean(sText, entries);
    }
    case EStep::SelectPath:
    case EStep::Expand:
    case EStep::Collapse: {
        const std::string sPath = gToUtf8(rStep.sText);
        return "the tree has no node " + gQuoted(sPath) + gDidYouMean(sPath, entries);
    }
    case EStep::Select:
    case EStep::Choose:
    case EStep::Set:
    case EStep::Check:
    case EStep::Click:
    case EStep::DoubleClick:
    case EStep::Focus:
    case EStep::Key:
        break;
    }
    return sField + ' ' + gNoIndex(rField, std::to_string(rStep.nIndex));
}

std::string NearestUsable(std::string_view sWanted, std::span<const std::string> candidates,
                          const std::string& rsPrefix = {})
{
    const std::string_view sNearest = gNearest(sWanted, candidates);
    return sNearest.empty()
               ? std::string()
               : "; the nearest that can be used is " + gQuoted(rsPrefix + std::string(sNearest));
}

/// The control that a key is for, as far as that is known; else null.
const CWnd* TargetOf(const CDialog& rDialog, TUserKey::EKey key)
{
    const CWnd* const pFocus = CWnd::GetFocus();
    if (key == TUserKey::EKey::Space)
        return pFocus;
    if (key != TUserKey::EKey::Enter)
        return nullptr;
    const auto* const pButton = dynamic_cast<const CButton*>(pFocus);
    return pButton && pButton->IsPushButton() ? pButton : rDialog.GetDefaultButton();
}

std::string RefusedKey(const CDialog& rDialog, const TStep& rStep, std::string_view sRefusal)
{
    const CWnd* const pTarget = TargetOf(rDialog, rStep.key.key);
    const std::string sTarget =
        pTarget && *pTarget->GetKey() ? gQuoted(pTarget->GetKey()) : "what the key means";
    return sTarget + ' ' + std::string(sRefusal);
}

/// A text box refuses a text only for characters that it can't hold.
std::string_view RefusalText(const TStep& rStep, EControl kind, EUserResult refusal)
{
    if (rStep.op != EStep::Set || refusal != EUserResult::Invalid)
        return gUserResultText(refusal);
    return kind == EControl::MultilineEdit ? "takes no NUL"
                                           : "is a single line: it takes no CR, LF or NUL";
}

/// A button of a radio group can't be used, but perhaps others of the group.
std::string RefusedButton(const TFieldView& rField, int nIndex, std::string_view sRefusal,
                          const std::string& rsField)
{
    const std::vector<std::string> labels = gEntriesOf(rField);
    const std::string& rsLabel = labels[static_cast<std::size_t>(nIndex)];
    std::vector<std::string> usable;
    for (std::size_t n = 0; n < labels.size(); ++n)
        if (rField.radios[n]->WouldAcceptUser() == EUserResult::Done)
            usable.push_back(labels[n]);
    return gQuoted(rsLabel) + " of " + rsField + ' ' + std::string(sRefusal) +
           NearestUsable(rsLabel, usable);
}

std::string Refused(CDialog& rDialog, const TStep& rStep, EUserResult refusal,
                    const std::string& rsPrefix)
{
    if (rStep.op == EStep::Key)
        return RefusedKey(rDialog, rStep, gUserResultText(refusal));
    const TFieldView field = gFieldOf(rDialog, rStep);
    const std::string_view sRefusal = RefusalText(rStep, field.kind, refusal);
    const std::string sField = gQuoted(rsPrefix + rStep.sKey);
    if (rStep.op == EStep::Choose)
        return RefusedButton(field, rStep.nIndex, sRefusal, sField);

    std::string sError = sField + ' ' + std::string(sRefusal);
    std::vector<TFieldView> fields = gShownFields(rDialog);
    const bool bAway = refusal == EUserResult::Disabled || refusal == EUserResult::Hidden;
    if (!bAway || rStep.bOnFrame ||
        std::ranges::find(fields, rStep.sKey, &TFieldView::sKey) == fields.end())
        return sError;
    std::erase_if(fields, [](const TFieldView& rField) { return !gIsUsable(rField); });
    return sError + NearestUsable(rStep.sKey, gKeysToActOn(fields), rsPrefix);
}

/// A node is selected by a step of its own.
std::string WrongKind(EControl kind, EStep op)
{
    const bool bSelect = op == EStep::Select || op == EStep::SelectEntry;
    return kind == EControl::Tree && bSelect ? "is a tree: use \"open\"" : gKindRule(kind);
}
} // namespace

std::string gStepError(CDialog& rDialog, const TStep& rStep, const TStepResult& rResult,
                       std::string_view sPrefix)
{
    const std::string sFullName = std::string(sPrefix) + rStep.sKey;
    switch (rResult.end) {
    case EStepEnd::Done:
        break;
    case EStepEnd::UnknownField:
        return gNoField(gShownFields(rDialog), rStep.sKey, sPrefix);
    case EStepEnd::UnknownEntry:
        return UnknownEntry(gFieldOf(rDialog, rStep), rStep, gQuoted(sFullName));
    case EStepEnd::Refused:
        return Refused(rDialog, rStep, rResult.refusal, std::string(sPrefix));
    case EStepEnd::WrongKind:
        if (rStep.op == EStep::Key)
            return "the key means nothing here";
        return gQuoted(sFullName) + ' ' + WrongKind(gFieldOf(rDialog, rStep).kind, rStep.op);
    }
    return {};
}

std::string gNoField(const std::vector<TFieldView>& rFields, std::string_view sKey,
                     std::string_view sPrefix)
{
    const std::string sBefore(sPrefix);
    const std::string sError = "there is no field " + gQuoted(sBefore + std::string(sKey));
    const std::vector<std::string> keys = gKeysToActOn(rFields);
    const std::string_view sNearest = gNearest(sKey, keys);
    return sNearest.empty()
               ? sError
               : sError + "; did you mean " + gQuoted(sBefore + std::string(sNearest)) + '?';
}

std::string gNoIndex(const TFieldView& rField, std::string_view sIndex)
{
    const int nCount = gEntryCountOf(rField);
    return "has no index " + std::string(sIndex) +
           (nCount == 0 ? "; it is empty" : "; the last is " + std::to_string(nCount - 1));
}

std::string gKindRule(EControl kind)
{
    switch (kind) {
    case EControl::Edit:
    case EControl::MultilineEdit:
        return "is a box for text: it takes a text";
    case EControl::DropDown:
        return "is a drop-down box: it takes an entry or a text";
    case EControl::DropDownList:
    case EControl::ListBox:
        return "is a list: it takes an entry";
    case EControl::Table:
        return "is a table: it takes the index of a row";
    case EControl::Tabs:
        return "is a row of tabs: it takes a tab";
    case EControl::Tree:
        return "is a tree: it takes the path of a node";
    case EControl::CheckBox:
        return "is a check box: it is turned on or off";
    case EControl::RadioButton:
        return "is a group of radio buttons: it takes one of them";
    case EControl::PushButton:
    case EControl::DefaultButton:
        return "is a button: it is pressed";
    case EControl::Static:
    case EControl::Group:
    case EControl::Label:
    case EControl::Frame:
        return "only shows a text: it takes nothing";
    }
    return {};
}

} // namespace quorvawiz::cli
