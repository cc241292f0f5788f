#include "cli/DescribeCommand.h"

#include "cli/Failure.h"
#include "cli/FieldJson.h"
#include "cli/Output.h"
#include "cli/PageRun.h"
#include "cli/Quote.h"
#include "cli/ShownFields.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
/// What the field holds at first: a text, an index, on or off, or null.
TJson StartValueOf(const TJson& rField)
{
    for (const char* const pMember : {"on", "text", "index", "selected"})
        if (rField.contains(pMember))
            return rField[pMember];
    return {};
}

/// What can be chosen in the field; null where nothing is.
TJson EntriesOf(const TFieldView& rField, const TJson& rState)
{
    if (rField.radios.empty())
        return rState.contains("items") ? rState["items"] : TJson();
    TJson labels = TJson::array();
    for (const TJson& rButton : rState["buttons"])
        labels.push_back(rButton["label"]);
    return labels;
}

/// One control: key, kind, label, unit, entries, start value and flags.
TJson DescribeField(const TFieldView& rField)
{
    const TJson state = gFieldToJson(rField);
    TJson control = {{"key", rField.sKey},
                     {"kind", state["kind"]},
                     {"label", state.contains("label") ? state["label"] : TJson()}};
    if (state.contains("unit"))
        control["unit"] = state["unit"];
    control["entries"] = EntriesOf(rField, state);
    if (state.contains("buttons"))
        control["buttons"] = state["buttons"];
    control["start_value"] = StartValueOf(state);
    control["enabled"] = state["enabled"];
    control["visible"] = state["visible"];
    control["read_only"] = state.contains("read_only");
    return control;
}

/// A cell that keeps to its line.
std::string Cell(const std::string& rsText)
{
    return gPrintable(rsText) == rsText ? rsText : gToLine(rsText);
}

/// A long text in quotation marks doesn't push the other columns away.
std::string Cut(std::string_view sText)
{
    constexpr int nMostCharacters = 40;
    std::size_t nEnd = 0;
    for (int n = 0; n <= nMostCharacters && nEnd < sText.size(); ++n) {
        const std::size_t nStart = nEnd;
        while (++nEnd < sText.size() && (static_cast<unsigned char>(sText[nEnd]) & 0xC0U) == 0x80U)
            ; // inside a character
        if (n == nMostCharacters)
            return gToLine(std::string(sText.substr(0, nStart)) + "\u2026");
    }
    return gToLine(sText);
}

std::string ValueCell(const TJson& rControl)
{
    const TJson& rValue = rControl["start_value"];
    if (rValue.is_null())
        return "-";
    if (rValue.is_boolean())
        return rValue.get<bool>() ? "on" : "off";
    if (rValue.is_number())
        return rValue.get<int>() < 0 ? "none" : '#' + rValue.dump();
    const std::string sText = rValue.get<std::string>();
    const bool bOnlyShown = rControl["kind"] == "static" || rControl["kind"] == "group";
    return bOnlyShown ? Cut(sText) : gToLine(sText);
}

/// The flags of a control, or of one button of a radio group.
std::string FlagsCell(const TJson& rControl)
{
    std::string sFlags;
    const auto add = [&sFlags](bool bSet, const char* pName) {
        if (bSet)
            sFlags += (sFlags.empty() ? "" : ",") + std::string(pName);
    };
    add(!rControl["enabled"].get<bool>(), "disabled");
    add(!rControl["visible"].get<bool>(), "hidden");
    add(rControl.value("read_only", false), "read-only");
    return sFlags.empty() ? "-" : sFlags;
}

std::string LabelCell(const TJson& rControl)
{
    const TJson& rLabel = rControl["label"];
    std::string sLabel = rLabel.is_string() ? rLabel.get<std::string>() : "-";
    if (const std::string sUnit = rControl.value("unit", ""); !sUnit.empty())
        sLabel += " (" + sUnit + ')';
    return Cell(sLabel);
}

using TRows = std::vector<std::vector<std::string>>;

/// What can be chosen, below its control: each with its index.
void AddEntries(const TJson& rControl, TRows& rRows)
{
    const bool bButtons = rControl.contains("buttons");
    for (std::size_t n = 0; n < rControl["entries"].size(); ++n) {
        const TJson& rEntry = rControl["entries"][n];
        rRows.push_back({"", "", '#' + std::to_string(n),
                         bButtons ? FlagsCell(rControl["buttons"][n]) : "",
                         rEntry.is_string() ? Cell(rEntry.get<std::string>()) : gToLine(rEntry)});
    }
}

std::string ToText(const TJson& rDescription)
{
    TRows rows{{"KEY", "KIND", "START VALUE", "FLAGS", "LABEL"}};
    for (const TJson& rControl : rDescription["controls"]) {
        rows.push_back({rControl["key"], rControl["kind"], ValueCell(rControl), FlagsCell(rControl),
                        LabelCell(rControl)});
        AddEntries(rControl, rows);
    }
    const TJson& rPath = rDescription["page"];
    const std::string sPath = rPath.is_string() ? rPath.get<std::string>() : "-";
    return sPath + "  " + rDescription["class"].get<std::string>() + "\n\n" + gAlignColumns(rows);
}
} // namespace

std::string gDescribePage(const TWizard& rWizard, const TDescribeOptions& rOptions)
{
    const std::vector<TPage> pages = gListPages(rWizard);
    const TPage& rPage = gFindBuiltPage(pages, rOptions.sPage);
    TJson description = {{"page", rPage.HasNode() ? TJson(rPage.Name()) : TJson()},
                         {"class", rPage.sClass},
                         {"controls", TJson::array()}};
    HeadlessDesktop desktop;
    CCommandCollector target;
    gRunOnPage(desktop, rWizard, rPage, target, [&description](CDialog& rInnermost) {
        for (const TFieldView& rField : gShownFields(rInnermost))
            description["controls"].push_back(DescribeField(rField));
        return false;
    });
    return rOptions.bJson ? gToLine(description) + '\n' : ToText(description);
}

int gRunDescribe(const TDescribeOptions& rOptions)
{
    gWriteOut(gDescribePage(gSpiceWizard(), rOptions));
    return kDone;
}

} // namespace quorvawiz::cli
