#include "cli/OptionsCommand.h"

#include "cli/Failure.h"
#include "cli/FieldJson.h"
#include "cli/Output.h"
#include "cli/Quote.h"
#include "platform/base/Ascii.h"
#include "platform/base/CodePage.h"
#include "platform/base/Utf8Text.h"
#include "platform/ui/Translate.h"
#include "wizard/setup/SimulationOptionTable.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string_view>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
std::string ExplanationOf(const TSimulationOption& rOption)
{
    // Whatever the code page of the wizard's texts.
    return gWideToMultiByte(gMultiByteToWide(rOption.pExplanation, kCodePageWindows1252),
                            kCodePageUtf8);
}

std::string EntryOf(const TOptionChoice& rChoice)
{
    return gToUtf8(xlang::gTranslate(rChoice.pEntry));
}

bool Contains(std::string_view sText, std::string_view sWord)
{
    const auto isSame = [](char a, char b) { return gToLowerAscii(a) == gToLowerAscii(b); };
    return sWord.empty() || std::search(sText.begin(), sText.end(), sWord.begin(), sWord.end(),
                                        isSame) != sText.end();
}

/// The options that have the word, as indexes.
std::vector<std::size_t> Find(std::string_view sWord)
{
    std::vector<std::size_t> found;
    for (std::size_t n = 0; n < kSimulationOptions.size(); ++n) {
        const TSimulationOption& rOption = kSimulationOptions[n];
        if (Contains(rOption.pEntry, sWord) || Contains(rOption.pKey, sWord) ||
            Contains(ExplanationOf(rOption), sWord))
            found.push_back(n);
    }
    return found;
}

// --- as JSON

TJson ChoicesToJson(const TOptionControl& rControl)
{
    if (rControl.choices.empty())
        return {};
    TJson choices = TJson::array();
    for (const TOptionChoice& rChoice : rControl.choices)
        choices.push_back({{"entry", EntryOf(rChoice)}, {"token", rChoice.pToken}});
    return choices;
}

TJson ToJson(std::size_t nOption)
{
    const TSimulationOption& rOption = kSimulationOptions[nOption];
    const TOptionControl& rControl = rOption.control;
    return {{"index", nOption},
            {"entry", rOption.pEntry},
            {"key", rOption.pKey},
            {"kind", gOptionKindName(rOption.control.kind)},
            {"choices", ChoicesToJson(rControl)},
            {"selected", rControl.choices.empty() ? TJson() : TJson(rControl.nDefault)},
            {"default", rOption.pDefault ? TJson(rOption.pDefault) : TJson()},
            {"label", gToUtf8(gOptionValueLabel(rOption))},
            {"unit", rOption.pUnit},
            {"explanation", ExplanationOf(rOption)}};
}

// --- as text

/// The explanation in one line.
std::string ExplanationCell(const TSimulationOption& rOption)
{
    std::string sText = ExplanationOf(rOption);
    std::ranges::replace(sText, '\n', ' ');
    return sText;
}

/// What can be chosen, below its option: the entry, and what the command has for it where that is
/// something else.
std::string ChoiceCell(const TOptionChoice& rChoice)
{
    const std::string sEntry = EntryOf(rChoice);
    return sEntry == rChoice.pToken ? sEntry : sEntry + " (" + rChoice.pToken + ')';
}

std::string DefaultCell(const TSimulationOption& rOption)
{
    return rOption.pDefault ? rOption.pDefault : "-";
}

std::string ToText(const std::vector<std::size_t>& rFound)
{
    std::vector<std::vector<std::string>> rows{
        {"OPTION", "KEY", "KIND", "DEFAULT", "UNIT", "EXPLANATION"}};
    for (const std::size_t nOption : rFound) {
        const TSimulationOption& rOption = kSimulationOptions[nOption];
        rows.push_back({rOption.pEntry, rOption.pKey, gOptionKindName(rOption.control.kind),
                        DefaultCell(rOption), *rOption.pUnit ? rOption.pUnit : "-",
                        ExplanationCell(rOption)});
        if (rOption.control.kind != EOptionKind::List)
            continue;
        for (std::size_t n = 0; n < rOption.control.choices.size(); ++n)
            rows.push_back(
                {"", "", '#' + std::to_string(n), ChoiceCell(rOption.control.choices[n])});
    }
    return rFound.empty() ? std::string() : gAlignColumns(rows);
}
} // namespace

std::string gTellOptions(const TOptionsOptions& rOptions)
{
    const std::vector<std::size_t> found = Find(rOptions.sWord);
    if (!rOptions.bJson)
        return ToText(found);
    TJson list = TJson::array();
    for (const std::size_t nOption : found)
        list.push_back(ToJson(nOption));
    return gToLine(list) + '\n';
}

int gRunOptions(const TOptionsOptions& rOptions)
{
    gWriteOut(gTellOptions(rOptions));
    if (!Find(rOptions.sWord).empty())
        return kDone;
    gComplain("no option has " + gQuoted(rOptions.sWord) +
              " in its name, its key or its explanation");
    return kNothingDone;
}

} // namespace quorvawiz::cli
