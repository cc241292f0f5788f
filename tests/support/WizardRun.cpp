#include "support/WizardRun.h"

#include "exports/Quorvawiz.h"
#include "platform/ui/Translate.h"
#include "support/Steps.h"
#include "wizard/frame/SinglePageDlg.h"

#include <gtest/gtest.h>

#include <stdexcept>

CScript& CScript::Do(std::vector<TStep> steps)
{
    for (TStep& rStep : steps) {
        mActions.emplace_back([step = std::move(rStep)](CDialog& rDialog) {
            const TStepResult result = gRunStep(rDialog, step);
            EXPECT_TRUE(result.IsDone())
                << "step on '" << step.sKey << "' with text '" << step.sText.GetString()
                << "' ended as " << static_cast<int>(result.end) << ", it "
                << gUserResultText(result.refusal);
        });
    }
    return *this;
}

CScript& CScript::Answer(std::vector<bool> answers)
{
    return Then([answers = std::move(answers)](CDialog&) {
        dynamic_cast<HeadlessDesktop&>(gDesktop()).SetAnswers({answers.begin(), answers.end()});
    });
}

CScript& CScript::Refused(TStep step, EStepEnd end, EUserResult refusal)
{
    mActions.emplace_back([step = std::move(step), end, refusal](CDialog& rDialog) {
        const TStepResult result = gRunStep(rDialog, step);
        EXPECT_EQ(result.end, end) << step.sKey;
        EXPECT_EQ(result.refusal, refusal) << step.sKey;
    });
    return *this;
}

CScript& CScript::Then(TAction action)
{
    mActions.push_back(std::move(action));
    return *this;
}

CScript& CScript::Look(std::vector<TAction> looks)
{
    for (TAction& rLook : looks)
        mActions.push_back(std::move(rLook));
    return *this;
}

void CScript::Run(HeadlessDesktop& rDesktop, const std::function<void()>& rRun)
{
    std::size_t nNext = 0;
    rDesktop.SetNextAction([this, &nNext](CDialog& rInnermost) {
        if (nNext == mActions.size())
            return false;
        mActions[nNext++](rInnermost);
        return true;
    });
    rRun();
    rDesktop.SetNextAction({});
    EXPECT_EQ(nNext, mActions.size()) << "the run ended before the script did";
}

namespace
{
/// Runs a script on whatever `run` opens for a target.
TWizardOutcome Run(CScript& rScript,
                   const std::function<void(quorvawiz::QuorvaCommandWizardTarget&)>& rRun)
{
    HeadlessDesktop desktop;
    CRecordingTarget target;
    rScript.Run(desktop, [&] { rRun(target); });

    TWizardOutcome outcome{std::move(target.mCommands), {}};
    for (const TShownBox& rBox : desktop.TakeBoxes())
        outcome.messages.emplace_back(rBox.box.sText.GetString());
    return outcome;
}
} // namespace

TWizardOutcome gRunWizard(CScript script)
{
    return Run(script, [](quorvawiz::QuorvaCommandWizardTarget& rTarget) {
        quorvawiz::gInvokeSpiceCommandWizard(nullptr, &rTarget);
    });
}

TWizardOutcome gRunWizard(std::vector<TStep> steps)
{
    return gRunWizard(CScript().Do(std::move(steps)));
}

TWizardOutcome gRunSinglePage(std::string_view sClass, CScript script)
{
    const CRuntimeClass* const pClass = CRuntimeClass::FromName(sClass);
    if (!pClass)
        throw std::invalid_argument("no such class: " + std::string(sClass));
    return Run(script, [pClass](quorvawiz::QuorvaCommandWizardTarget& rTarget) {
        CSinglePageDlg(nullptr, &rTarget, *pClass).DoModal();
    });
}

TWizardOutcome gCompose(const std::string& rsPage, std::vector<std::string> arguments)
{
    const std::size_t nSlash = rsPage.find('/');
    CScript script;
    if (nSlash == std::string::npos)
        return gRunSinglePage(rsPage,
                              script.Fill(std::move(arguments)).Do({steps::Click("insert")}));
    const auto translated = [](const std::string& rsLabel) {
        return xlang::gTranslate((std::string(xlang::kTranslationMarker) + rsLabel).c_str());
    };
    script.Do({steps::Open(translated(rsPage.substr(0, nSlash)) + "/" +
                           translated(rsPage.substr(nSlash + 1)))});
    return gRunWizard(script.Fill(std::move(arguments)).Do({steps::Click("insert")}));
}

CTreeDlg& gOpenWizard()
{
    return dynamic_cast<CTreeDlg&>(*gOutermostDialog());
}
