#include "wizard/sources/SourcePageRun.h"

#include "platform/ui/Dialog.h"
#include "platform/ui/RuntimeClass.h"
#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <map>

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

void gExpectRemembered(const std::string& rsPage, const std::string& rsTwin,
                       const TFieldValues& rInserted, const TFieldValues& rRefused,
                       const TFieldValues& rShown)
{
    SCOPED_TRACE(rsPage);
    CRememberedBase::ResetAll();
    CScript build = OnPage(rsPage);
    build.Fill(rInserted).Do({steps::Insert()});
    build.Fill(rRefused).Do({steps::Insert()});
    const auto outcome = gRunWizard(std::move(build));
    EXPECT_EQ(outcome.inserted.size(), 1U);
    EXPECT_EQ(outcome.messages.size(), 1U);

    CScript next = OnPage(rsPage);
    LookAt(next, rShown);
    gRunWizard(std::move(next));
    CScript twin = OnPage(rsTwin);
    LookAt(twin, rShown, true);
    gRunWizard(std::move(twin));
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
