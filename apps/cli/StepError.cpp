#include "cli/StepError.h"

#include "cli/ShownFields.h"
#include "cli/Suggest.h"
#include "platform/base/CodePage.h"
#include "platform/ui/Button.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
std::string UnknownField(CDialog& rDialog, const TStep& rStep)
{
    return "there is no field " + gQuoted(rStep.sKey) +
           gDidYouMean(rStep.sKey, gKeysToActOn(gShownFields(rDialog)));
}

std::string UnknownEntry(const TFieldView& rField, const TStep& rStep)
{
    const std::vector<std::string> entries = gEntriesOf(rField);
    const std::string sField = gQuoted(rStep.sKey);
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
    return sField + " has no index " + std::to_string(rStep.nIndex);
}

std::string NearestUsable(std::string_view sWanted, std::span<const std::string> candidates)
{
    const std::string_view sNearest = gNearest(sWanted, candidates);
    return sNearest.empty() ? std::string()
                            : "; the nearest that can be used is " + gQuoted(sNearest);
}

/// A button of a radio group can't be used, but perhaps others of the group.
std::string RefusedButton(const TFieldView& rField, int nIndex, std::string_view sRefusal)
{
    const std::vector<std::string> labels = gEntriesOf(rField);
    const std::string& rsLabel = labels[static_cast<std::size_t>(nIndex)];
    std::vector<std::string> usable;
    for (std::size_t n = 0; n < labels.size(); ++n)
        if (rField.radios[n]->WouldAcceptUser() == EUserResult::Done)
            usable.push_back(labels[n]);
    return gQuoted(rsLabel) + " of " + gQuoted(rField.sKey) + ' ' + std::string(sRefusal) +
           NearestUsable(rsLabel, usable);
}

std::string Refused(CDialog& rDialog, const TStep& rStep, EUserResult refusal)
{
    const std::string_view sRefusal = gUserResultText(refusal);
    if (rStep.op == EStep::Key)
        return "what the key means " + std::string(sRefusal);
    if (rStep.op == EStep::Choose)
        return RefusedButton(gFindField(rDialog, rStep.sKey), rStep.nIndex, sRefusal);

    std::string sError = gQuoted(rStep.sKey) + ' ' + std::string(sRefusal);
    std::vector<TFieldView> fields = gShownFields(rDialog);
    const bool bAway = refusal == EUserResult::Disabled || refusal == EUserResult::Hidden;
    if (!bAway || std::ranges::find(fields, rStep.sKey, &TFieldView::sKey) == fields.end())
        return sError;
    std::erase_if(fields, [](const TFieldView& rField) { return !gIsUsable(rField); });
    return sError + NearestUsable(rStep.sKey, gKeysToActOn(fields));
}
} // namespace

std::string gStepError(CDialog& rDialog, const TStep& rStep, const TStepResult& rResult)
{
    switch (rResult.end) {
    case EStepEnd::Done:
        break;
    case EStepEnd::UnknownField:
        return UnknownField(rDialog, rStep);
    case EStepEnd::UnknownEntry:
        return UnknownEntry(gFindField(rDialog, rStep.sKey), rStep);
    case EStepEnd::Refused:
        return Refused(rDialog, rStep, rResult.refusal);
    case EStepEnd::WrongKind:
        if (rStep.op == EStep::Key)
            return "the key means nothing here";
        return gQuoted(rStep.sKey) + ' ' + gKindRule(gFindField(rDialog, rStep.sKey).kind);
    }
    return {};
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
