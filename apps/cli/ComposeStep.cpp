#include "cli/ComposeStep.h"

#include "cli/Failure.h"
#include "cli/Quote.h"
#include "cli/ShownFields.h"
#include "cli/StepError.h"
#include "cli/Suggest.h"
#include "platform/base/CodePage.h"
#include "platform/base/Utf8Text.h"

#include <algorithm>
#include <charconv>
#include <limits>
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
    if (!text && !gIsUtf8(sValue))
        throw CUsageError("the text for " + gQuoted(sName) + " isn't UTF-8");
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

/// The index of an entry that no list has.
constexpr int kNoIndex = std::numeric_limits<int>::max();

/// The number of "#3", or kNoIndex for one that is no int; none for any other text.
std::optional<int> ParseIndex(std::string_view sValue)
{
    if (!sValue.starts_with('#'))
        return std::nullopt;
    sValue.remove_prefix(1);
    int nIndex = 0;
    const auto [pEnd, error] =
        std::from_chars(sValue.data(), sValue.data() + sValue.size(), nIndex);
    const bool bTooBig = error == std::errc::result_out_of_range;
    if ((error != std::errc() && !bTooBig) || pEnd != sValue.data() + sValue.size())
        return std::nullopt;
    return bTooBig ? kNoIndex : nIndex;
}

/// An action that takes "#3". None for a text that is no index.
/// @throws CUsageError for an index beyond int
std::optional<TStep> IndexStep(EStep op, const TFieldView& rField, std::string_view sName,
                               std::string_view sValue)
{
    const std::optional<int> index = ParseIndex(sValue);
    if (!index)
        return std::nullopt;
    if (*index == kNoIndex)
        throw CUsageError(gQuoted(sName) + ' ' + gNoIndex(rField, sValue.substr(1)));
    return TStep{.op = op, .sKey = std::string(rField.sKey), .nIndex = *index};
}

TStep SelectStep(const TFieldView& rField, std::string_view sName, const CString& rsText)
{
    const auto isWanted = [&](const std::string& rsEntry) {
        return gFromUtf8(rsEntry).value_or(CString()).CompareNoCase(rsText) == 0;
    };
    if (!std::ranges::any_of(gEntriesOf(rField), isWanted))
        if (std::optional<TStep> step = IndexStep(EStep::Select, rField, sName, rsText))
            return *std::move(step);
    return {.op = EStep::SelectEntry, .sKey = std::string(rField.sKey), .sText = rsText};
}

/// What stands for no entry to the letter is a text to be typed.
TStep DropDownStep(const TFieldView& rField, const CString& rsText)
{
    const std::string sKey(rField.sKey);
    const std::vector<std::string> entries = gEntriesOf(rField);
    if (std::ranges::find(entries, gToUtf8(rsText)) != entries.end())
        return {.op = EStep::SelectEntry, .sKey = sKey, .sText = rsText};
    const std::optional<int> index = ParseIndex(rsText);
    if (index && *index >= 0 && *index < gEntryCountOf(rField))
        return {.op = EStep::Select, .sKey = sKey, .nIndex = *index};
    return {.op = EStep::Set, .sKey = sKey, .sText = rsText};
}

TStep ChooseStep(const TFieldView& rField, std::string_view sName, const std::string& rsValue)
{
    const std::vector<std::string> labels = gEntriesOf(rField);
    const CString sWanted = Encode(sName, gWithoutMnemonic(rsValue));
    for (std::size_t n = 0; n < labels.size(); ++n)
        if (gFromUtf8(labels[n]).value_or(CString()).CompareNoCase(sWanted) == 0)
            return {.op = EStep::Choose,
                    .sKey = std::string(rField.sKey),
                    .nIndex = static_cast<int>(n)};
    if (std::optional<TStep> step = IndexStep(EStep::Choose, rField, sName, rsValue))
        return *std::move(step);
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
        return DropDownStep(rField, Encode(sName, *rValue));
    case EControl::DropDownList:
    case EControl::ListBox:
    case EControl::Tabs:
        return SelectStep(rField, sName, Encode(sName, *rValue));
    case EControl::Table:
        if (std::optional<TStep> step = IndexStep(EStep::Select, rField, sName, *rValue))
            return *std::move(step);
        break;
    case EControl::Tree:
        return {.op = EStep::SelectPath, .sKey = sKey, .sText = Encode(sName, *rValue)};
    case EControl::CheckBox:
        return CheckStep(sName, sKey, *rValue);
    case EControl::RadioButton:
        return ChooseStep(rField, sName, *rValue);
    case EControl::Static:
    case EControl::Group:
    case EControl::Label:
    case EControl::Frame:
        break;
    }
    ThrowUsage(rField, sName);
}

} // namespace quorvawiz::cli
