// The examples for the command line hold for the pages themselves.

#include "support/examples/ExampleLines.h"

#include "platform/ui/Button.h"
#include "platform/ui/FieldView.h"
#include "support/Steps.h"
#include "support/WizardRun.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

std::string WithoutMnemonic(CString sLabel)
{
    sLabel.Remove('&');
    return sLabel.GetString();
}

/// The step that brings a field to a value.
TStep StepFor(const TFieldView& rField, const std::string& rsKey, const std::string& rsValue)
{
    if (rField.kind == EControl::DropDownList)
        return Select(rsKey, CString(rsValue));
    if (rField.kind == EControl::CheckBox)
        return Check(rsKey, rsValue == "on");
    if (rField.kind == EControl::RadioButton) {
        if (rsValue.starts_with('#'))
            return Choose(rsKey, std::stoi(rsValue.substr(1)));
        int nButton = 0;
        for (const CButton* pButton : rField.radios) {
            if (WithoutMnemonic(pButton->GetWindowText()) == rsValue)
                return Choose(rsKey, nButton);
            ++nButton;
        }
    }
    CString sText(rsValue);
    sText.Replace("\n", "\r\n");
    return Set(rsKey, sText);
}

/// The script of an example: a sweep's dialog is opened for its first argument and accepted after
/// its last.
CScript ScriptOf(const TExampleLine& rExample)
{
    CScript script;
    if (rExample.sPage.find('/') != std::string::npos)
        script.Do({Open(CString(rExample.sPage))});
    std::string sOpen;
    const auto openSweep = [&script, &sOpen](const std::string& rsButton) {
        if (sOpen == rsButton)
            return;
        if (!sOpen.empty())
            script.Do({Click("accept")});
        if (!rsButton.empty())
            script.Do({Click(rsButton)});
        sOpen = rsButton;
    };
    for (const std::string& rsArgument : rExample.arguments) {
        const std::string sPath = rsArgument.substr(0, rsArgument.find('='));
        const std::size_t nDot = sPath.find('.');
        openSweep(nDot == std::string::npos ? "" : sPath.substr(0, nDot));
        script.Then([sKey = sPath.substr(nDot + 1),
                     sValue = rsArgument.substr(sPath.size() + 1)](CDialog& rDialog) {
            const TFieldView field = gFindField(rDialog, sKey);
            ASSERT_TRUE(field.pControl) << sKey;
            EXPECT_TRUE(gRunStep(rDialog, StepFor(field, sKey, sValue)).IsDone()) << sKey;
        });
    }
    openSweep("");
    script.Do({Insert()});
    return script;
}

std::vector<std::string> OneOrNone(const std::string& rsText)
{
    CString sText(rsText);
    sText.Replace("\n", "\r\n");
    return rsText.empty() ? std::vector<std::string>()
                          : std::vector<std::string>{sText.GetString()};
}

TEST(ExampleLines, EveryPageBuildsTheLinesOfItsExamples)
{
    for (const TExampleLine& rExample : gAllExamples()) {
        SCOPED_TRACE(rExample.sPage + ": " + rExample.sLine + rExample.sMessage);
        CRememberedBase::ResetAll();
        const bool bNode = rExample.sPage.find('/') != std::string::npos;
        const auto outcome = bNode ? gRunWizard(ScriptOf(rExample))
                                   : gRunSinglePage(rExample.sPage, ScriptOf(rExample));
        EXPECT_EQ(outcome.inserted, OneOrNone(rExample.sLine));
        EXPECT_EQ(outcome.messages, OneOrNone(rExample.sMessage));
    }
}
} // namespace
