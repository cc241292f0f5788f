#include "wizard/sources/SourcePageRun.h"

#include "platform/ui/Dialog.h"
#include "platform/ui/RuntimeClass.h"
#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <algorithm>
#include <array>
#include <set>
#include <span>
#include <utility>

namespace
{
/// What another page has inserted before a page refuses.
constexpr const char* kLineBefore = ".temp 27";

std::vector<std::string> OneOrNone(const std::string& rsText)
{
    return rsText.empty() ? std::vector<std::string>() : std::vector<std::string>{rsText};
}

std::string WithWord(std::string sText, const std::string& rsWord)
{
    if (const std::size_t nAt = sText.find('@'); nAt != std::string::npos)
        sText.replace(nAt, 1, rsWord);
    return sText;
}

TFieldValues Joined(TFieldValues fields, const TFieldValues& rMore)
{
    fields.insert(fields.end(), rMore.begin(), rMore.end());
    return fields;
}

CScript OnPage(const std::string& rsPage)
{
    return CScript().Do({steps::Open(rsPage)});
}

std::string KeyOf(const std::string& rsField)
{
    return rsField.substr(0, rsField.find('='));
}

/// Looks whether each field has its value; lines are joined by LF.
void LookAt(CScript& rScript, const TFieldValues& rFields)
{
    for (const std::string& rsField : rFields) {
        CString sText(rsField.substr(rsField.find('=') + 1));
        sText.Replace("\n", "\r\n");
        rScript.Look({look::Text(KeyOf(rsField), sText.GetString())});
    }
}

/// Looks whether each field is empty, whatever its value here.
void LookAtNone(CScript& rScript, const TFieldValues& rFields)
{
    for (const std::string& rsField : rFields)
        rScript.Look({look::Text(KeyOf(rsField), "")});
}

/// How many group boxes of the template stand around this row.
std::size_t DepthOf(const TControlRow& rRow, std::span<const TControlRow> rows)
{
    return static_cast<std::size_t>(std::ranges::count_if(rows, [&rRow](const TControlRow& rGroup) {
        return rGroup.kind == EControl::Group && &rGroup != &rRow &&
               rGroup.rect.Contains(rRow.rect);
    }));
}

std::string ShownBy(const TControlRow& rRow)
{
    const std::string sKey = rRow.pKey;
    if (gIsInput(rRow.kind))
        return sKey + (rRow.kind == EControl::MultilineEdit ? " (lines)" : "");
    if (rRow.kind == EControl::Label || rRow.kind == EControl::CheckBox)
        return sKey + ": " + rRow.pLabel;
    if (rRow.kind == EControl::RadioButton)
        return sKey + (rRow.nFlags & kFirstOfGroup ? ", first: " : ", next: ") + rRow.pLabel;
    return std::string("'") + rRow.pLabel + '\'';
}
} // namespace

void gExpectLines(const std::string& rsPage, const TFieldValues& rCommon,
                  const std::vector<TSourceCase>& rCases)
{
    const CBracketTranslation translation;
    for (const TSourceCase& rCase : rCases) {
        SCOPED_TRACE(rsPage + ": " + rCase.pName);
        CRememberedBase::ResetAll();
        const auto outcome = gCompose(rsPage, Joined(rCommon, rCase.fields));
        EXPECT_EQ(outcome.inserted, OneOrNone(rCase.sLine));
        EXPECT_EQ(outcome.messages, OneOrNone(rCase.sMessage));
    }
}

void gExpectLinesOfBoth(const std::string& rsKind, const TFieldValues& rCommon,
                        const std::vector<TSourceCase>& rCases)
{
    for (const auto& [sCategory, sLetter, sWord] :
         {std::array<std::string, 3>{"Current source/", "I", "current"},
          std::array<std::string, 3>{"Voltage source/", "V", "voltage"}}) {
        std::vector<TSourceCase> cases = rCases;
        for (TSourceCase& rCase : cases) {
            rCase.sMessage = WithWord(rCase.sMessage, sWord);
            if (!rCase.sLine.empty())
                rCase.sLine.insert(0, sLetter);
        }
        gExpectLines(sCategory + rsKind, rCommon, cases);
    }
}

void gExpectOneLetter(const std::string& rsKind, const TFieldValues& rCommon,
                      const std::string& rsRest)
{
    const auto lines = [&rsRest](const std::vector<std::pair<const char*, std::string>>& rNames) {
        std::vector<TSourceCase> cases;
        cases.reserve(rNames.size());
        for (const auto& [pName, sBegin] : rNames)
            cases.push_back({pName, {std::string("name=") + pName}, sBegin + rsRest, ""});
        return cases;
    };
    gExpectLines(
        "Current source/" + rsKind, rCommon,
        lines({{"i1", "i1"}, {"I1", "I1"}, {"I", "I"}, {"i", "i"}, {"1i", "I1i"}, {"v1", "Iv1"}}));
    gExpectLines(
        "Voltage source/" + rsKind, rCommon,
        lines({{"v1", "v1"}, {"V1", "V1"}, {"V", "V"}, {"v", "v"}, {"1v", "V1v"}, {"i1", "Vi1"}}));
}

void gExpectRemembered(const std::string& rsKind, const TFieldValues& rInserted,
                       const TFieldValues& rRefused, const TFieldValues& rShown)
{
    const std::string sCurrent = "Current source/" + rsKind;
    const std::string sVoltage = "Voltage source/" + rsKind;
    for (const auto& [sPage, sTwin] : {std::pair{sCurrent, sVoltage}, {sVoltage, sCurrent}}) {
        SCOPED_TRACE(sPage);
        CRememberedBase::ResetAll();
        const auto outcome = gRunWizard(OnPage(sPage)
                                            .Fill(rInserted)
                                            .Do({steps::Insert()})
                                            .Fill(rRefused)
                                            .Do({steps::Insert()}));
        EXPECT_EQ(outcome.inserted.size(), 1U);
        EXPECT_EQ(outcome.messages.size(), 1U);

        CScript next = OnPage(sPage);
        LookAt(next, rShown);
        next.Do({steps::Open(sTwin)});
        LookAtNone(next, rShown);
        gRunWizard(std::move(next));
    }
}

void gExpectLeft(const std::string& rsPage, const TFieldValues& rFields, const std::string& rsLeft)
{
    SCOPED_TRACE(rsPage);
    CRememberedBase::ResetAll();
    const auto outcome = gRunWizard(OnPage("Settings/Temperature")
                                        .Fill({"temperature-list=27"})
                                        .Do({steps::Insert()})
                                        .Look({look::Command(kLineBefore)})
                                        .Do({steps::Open(rsPage)})
                                        .Fill(rFields)
                                        .Do({steps::Insert()})
                                        .Look({look::Command(rsLeft)}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{kLineBefore});
    EXPECT_EQ(outcome.messages.size(), 1U);
}

void gExpectKept(const std::string& rsPage, const TFieldValues& rFields)
{
    gExpectLeft(rsPage, rFields, kLineBefore);
}

void gExpectLeftByBoth(const std::string& rsKind, const TFieldValues& rFields,
                       const std::string& rsLeft)
{
    gExpectLeft("Current source/" + rsKind, rFields, "I" + rsLeft);
    gExpectLeft("Voltage source/" + rsKind, rFields, "V" + rsLeft);
}

void gExpectKeptByBoth(const std::string& rsKind, const TFieldValues& rFields)
{
    gExpectKept("Current source/" + rsKind, rFields);
    gExpectKept("Voltage source/" + rsKind, rFields);
}

std::string gShownBy(std::string_view sClass)
{
    const auto pPage = CRuntimeClass::FromName(sClass)->CreateObject();
    const std::span<const TControlRow> rows = dynamic_cast<CDialog&>(*pPage).GetTemplate().rows;
    std::string sShown = "\n";
    std::set<std::string_view> fields; // the keys of those that a label has told
    for (const TControlRow& rRow : rows) {
        const bool bTold = fields.contains(rRow.pKey);
        const bool bLabel = rRow.kind == EControl::Label;
        const auto append = [&sShown](const std::string& rsText) {
            sShown.insert(sShown.size() - 1, rsText); // to the line before
        };
        if (bTold && rRow.kind == EControl::MultilineEdit)
            append(rRow.nFlags & kWantReturn ? " (lines)" : " (lines without Return)");
        if (bTold && bLabel)
            append(std::string(" [") + rRow.pLabel + ']');
        if (bTold && (bLabel || gIsInput(rRow.kind)))
            continue;
        sShown.append(2 * DepthOf(rRow, rows), ' ');
        if (bLabel)
            fields.insert(rRow.pKey);
        sShown += ShownBy(rRow) + '\n';
    }
    return sShown;
}
