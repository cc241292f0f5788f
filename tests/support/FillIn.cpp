#include "platform/ui/Button.h"
#include "platform/ui/FieldView.h"
#include "support/Steps.h"
#include "support/WizardRun.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
std::string WithoutMnemonic(CString sLabel)
{
    sLabel.Remove('&');
    return sLabel.GetString();
}

/// The index that a value such as `#2` names, or the place of the button with this text.
int ButtonOf(const TFieldView& rField, const std::string& rsValue)
{
    if (rsValue.starts_with('#'))
        return std::stoi(rsValue.substr(1));
    const auto button = std::ranges::find(rField.radios, rsValue, [](const CButton* pButton) {
        return WithoutMnemonic(pButton->GetWindowText());
    });
    return static_cast<int>(button - rField.radios.begin());
}

/// The step that brings a field to a value.
TStep StepFor(const TFieldView& rField, const std::string& rsValue)
{
    std::string sKey(rField.sKey);
    if (rField.kind == EControl::CheckBox)
        return steps::Check(sKey, rsValue == "on");
    if (rField.kind == EControl::RadioButton)
        return steps::Choose(sKey, ButtonOf(rField, rsValue));
    const bool bList = rField.kind == EControl::DropDownList || rField.kind == EControl::ListBox;
    if (bList && rsValue.starts_with('#'))
        return steps::Select(sKey, std::stoi(rsValue.substr(1)));
    if (bList)
        return steps::Select(sKey, CString(rsValue));
    CString sText(rsValue);
    sText.Replace("\n", "\r\n");
    return steps::Set(sKey, sText);
}

CScript::TAction FieldTo(std::string sKey, std::string sValue)
{
    return [sKey = std::move(sKey), sValue = std::move(sValue)](CDialog& rDialog) {
        const TFieldView field = gFindField(rDialog, sKey);
        ASSERT_TRUE(field.pControl) << "there is no field '" << sKey << "'";
        const TStepResult result = gRunStep(rDialog, StepFor(field, sValue));
        EXPECT_TRUE(result.IsDone())
            << sKey << '=' << sValue << ": " << gUserResultText(result.refusal);
    };
}
} // namespace

CScript& CScript::Fill(std::vector<std::string> arguments)
{
    std::string sOpen; // the button whose dialog is open
    const auto open = [this, &sOpen](const std::string& rsButton) {
        if (sOpen == rsButton)
            return;
        if (!sOpen.empty())
            Do({steps::Click("accept")});
        if (!rsButton.empty())
            Do({steps::Click(rsButton)});
        sOpen = rsButton;
    };
    for (const std::string& rsArgument : arguments) {
        const std::size_t nEquals = rsArgument.find('=');
        const std::string sPath = rsArgument.substr(0, nEquals);
        const std::size_t nDot = sPath.find('.');
        open(nDot == std::string::npos ? "" : sPath.substr(0, nDot));
        std::string sKey = sPath.substr(nDot + 1);
        if (nEquals == std::string::npos)
            Do({steps::Click(std::move(sKey))});
        else
            Then(FieldTo(std::move(sKey), rsArgument.substr(nEquals + 1)));
    }
    open("");
    return *this;
}
