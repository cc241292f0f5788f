#include "wizard/sources/SourcePageRun.h"

#include "platform/ui/Dialog.h"
#include "platform/ui/RuntimeClass.h"
#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <array>
#include <map>
#include <utility>

namespace
{
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

/// Looks whether each field has its value; lines are joined by LF.
void LookAt(CScript& rScript, const TFieldValues& rFields, bool bEmpty = false)
{
    for (const std::string& rsField : rFields) {
        const std::size_t nEquals = rsField.find('=');
        CString sText(bEmpty ? "" : rsField.substr(nEquals + 1));
        sText.Replace("\n", "\r\n");
        rScript.Look({look::Text(rsField.substr(0, nEquals), sText.GetString())});
    }
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
        LookAt(next, rShown, true);
        gRunWizard(std::move(next));
    }
}

void gExpectLeft(const std::string& rsPage, const TFieldValues& rFields, const std::string& rsLeft)
{
    SCOPED_TRACE(rsPage);
    CRememberedBase::ResetAll();
    const auto outcome = gRunWizard(
        OnPage(rsPage).Fill(rFields).Do({steps::Insert()}).Look({look::Command(rsLeft)}));
    EXPECT_EQ(outcome.inserted, std::vector<std::string>{});
    EXPECT_EQ(outcome.messages.size(), 1U);
}

std::vector<std::string> gShownBy(std::string_view sClass)
{
    const auto pPage = CRuntimeClass::FromName(sClass)->CreateObject();
    std::vector<std::string> shown;
    std::map<std::string_view, std::size_t> fields; // by key, where they stand
    for (const TControlRow& rRow : dynamic_cast<CDialog&>(*pPage).GetTemplate().rows) {
        const std::string sKey = rRow.pKey;
        if (gIsInput(rRow.kind) && !fields.contains(rRow.pKey)) {
            shown.push_back(sKey);
        } else if (rRow.kind == EControl::Label && fields.contains(rRow.pKey)) {
            shown[fields[rRow.pKey]] += std::string(" [") + rRow.pLabel + ']';
        } else if (rRow.kind == EControl::Label) {
            fields[rRow.pKey] = shown.size();
            shown.push_back(sKey + ": " + rRow.pLabel);
        } else if (!gIsInput(rRow.kind)) {
            shown.push_back(std::string("'") + rRow.pLabel + '\'');
        }
    }
    return shown;
}
