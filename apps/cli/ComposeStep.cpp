#include "cli/ComposeStep.h"

#include "cli/Failure.h"
#include "cli/ShownFields.h"
#include "cli/StepError.h"
#include "cli/Suggest.h"
#include "platform/base/CodePage.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace quorvawiz::cli
{
namespace
{
/// How the field is written as an argument.
std::string Usage(const TFieldView& rField, std::string_view sName)
{
    const std::string sKey(sName);
    switch (rField.kind) {
    case EControl::Edit:
    case EControl::MultilineEdit:
        return sKey + "=TEXT";
    case EControl::DropDown:
        return sKey + "=TEXT or " + sKey + "=#INDEX";
    case EControl::DropDownList:
    case EControl::ListBox:
    case EControl::Tabs:
        return sKey + "=ENTRY or " + sKey + "=#INDEX";
    case EControl::RadioButton:
        return sKey + "=LABEL or " + sKey + "=#INDEX";
    case EControl::Table:
        return sKey + "=#INDEX";
    case EControl::Tree:
        return sKey + "=PATH";
    case EControl::CheckBox:
        return sKey + "=on or " + sKey + "=off";
    case EControl::PushButton:
    case EControl::DefaultButton:
        return sKey + " alone";
    case EControl::Static:
    case EControl::Group:
    case EControl::Label:
    case EControl::Frame:
        return {};
    }
    return {};
}

[[noreturn]] void ThrowUsage(const TFieldView& rField, std::string_view sName)
{
    const std::string sUsage = Usage(rField, sName);
    throw CUsageError(gQuoted(sName) + ' ' + gKindRule(rField.kind) +
                      (sUsage.empty() ? "" : "; write " + sUsage));
}

CString Encode(std::string_view sName, std::string_view sValue)
{
    std::optional<CString> text = gFromUtf8(sValue);
    if (!text)
        throw CUsageError("the text for " + gQuoted(sName) + " doesn't fit in code page " +
                          std::to_string(gGetSystemCodePage()));
    return *std::move(text);
}

/// The shell's line ends are LF, those of a text box are CR LF.
CString WithLineEnds(CString sText)
{
    sText.Replace("\r\n", "\n");
    sText.Replace("\n", "\r\n");
    return sText;
}

/// The number of "#3"; none for any other text.
std::optional<int> ParseIndex(std::string_view sValue)
{
    if (!sValue.starts_with('#'))
        return std::nullopt;
    sValue.remove_prefix(1);
    int nIndex = 0;
    const auto [pEnd, error] =
        std::from_chars(sValue.data(), sValue.data() + sValue.size(), nIndex);
    if (error != std::errc() || pEnd != sValue.data() + sValue.size())
        return std::nullopt;
    return nIndex;
}

bool HasEntry(const TFieldView& rField, const CString& rsText)
{
    return std::ranges::any_of(gEntriesOf(rField), [&](const std::string& rsEntry) {
        return gFromUtf8(rsEntry).value_or(CString()).CompareNoCase(rsText) == 0;
    });
}

TStep SelectStep(const TFieldView& rField, const std::string& rsKey, const CString& rsText)
{
    const std::optional<int> index = ParseIndex(rsText);
    if (index && !HasEntry(rField, rsText))
        return {.op = EStep::Select, .sKey = rsKey, .nIndex = *index};
    return {.op = EStep::SelectEntry, .sKey = rsKey, .sText = rsText};
}

/// What stands for no entry is a text to be typed.
TStep DropDownStep(const TFieldView& rField, const std::string& rsKey, const CString& rsText)
{
    const int nCount = static_cast<int>(gEntriesOf(rField).size());
    const std::optional<int> index = ParseIndex(rsText);
    if (HasEntry(rField, rsText) || (index && *index >= 0 && *index < nCount))
        return SelectStep(rField, rsKey, rsText);
    return {.op = EStep::Set, .sKey = rsKey, .sText = rsText};
}

TStep ChooseStep(const TFieldView& rField, std::string_view sName, const std::string& rsKey,
                 const std::string& rsValue)
{
    const std::vector<std::string> labels = gEntriesOf(rField);
    const CString sWanted = Encode(sName, gWithoutMnemonic(rsValue));
    for (std::size_t n = 0; n < labels.size(); ++n)
        if (gFromUtf8(labels[n]).value_or(CString()).CompareNoCase(sWanted) == 0)
            return {.op = EStep::Choose, .sKey = rsKey, .nIndex = static_cast<int>(n)};
    if (const std::optional<int> index = ParseIndex(rsValue))
        return {.op = EStep::Choose, .sKey = rsKey, .nIndex = *index};
    throw CUsageError(gQuoted(sName) + " has no button " + gQuoted(rsValue) +
                      gDidYouMean(rsValue, labels));
}

TStep CheckStep(std::string_view sName, const std::string& rsKey, const std::string& rsValue)
{
    if (rsValue != "on" && rsValue != "off")
        throw CUsageError(gQuoted(sName) + " is turned on or off, not " + gQuoted(rsValue));
    return {.op = EStep::Check, .sKey = rsKey, .nIndex = rsValue == "on" ? 1 : 0};
}
} // namespace

TStep gComposeStep(const TFieldView& rField, std::string_view sName,
                   const std::optional<std::string>& rValue)
{
    const std::string sKey(rField.sKey);
    const bool bButton =
        rField.kind == EControl::PushButton || rField.kind == EControl::DefaultButton;
    if (bButton != !rValue)
        ThrowUsage(rField, sName);
    switch (rField.kind) {
    case EControl::PushButton:
    case EControl::DefaultButton:
        return {.op = EStep::Click, .sKey = sKey};
    case EControl::Edit:
    case EControl::MultilineEdit:
        return {.op = EStep::Set, .sKey = sKey, .sText = WithLineEnds(Encode(sName, *rValue))};
    case EControl::DropDown:
        return DropDownStep(rField, sKey, Encode(sName, *rValue));
    case EControl::DropDownList:
    case EControl::ListBox:
    case EControl::Tabs:
        return SelectStep(rField, sKey, Encode(sName, *rValue));
    case EControl::Table:
        if (const std::optional<int> index = ParseIndex(*rValue))
            return {.op = EStep::Select, .sKey = sKey, .nIndex = *index};
        break;
    case EControl::Tree:
        return {.op = EStep::SelectPath, .sKey = sKey, .sText = Encode(sName, *rValue)};
    case EControl::CheckBox:
        return CheckStep(sName, sKey, *rValue);
    case EControl::RadioButton:
        return ChooseStep(rField, sName, sKey, *rValue);
    case EControl::Static:
    case EControl::Group:
    case EControl::Label:
    case EControl::Frame:
        break;
    }
    ThrowUsage(rField, sName);
}

} // namespace quorvawiz::cli
