#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/TranslationScope.h"
#include "wizard/optimization/OptimizationRun.h"

#include <gtest/gtest.h>

// The description beside the keys of the algorithm, which follows the focus.

namespace
{
using namespace steps;
using namespace optimization;

using OptimizationHelp = PageTest;

struct THelp {
    const char* pKey;
    const char* pText;
};

constexpr THelp kHelps[] = {
    {"cendif", "Gradient value below which more accurate derivative computation methods are used "
               "to compute the gradient"},
    {"close", "An estimate of how close the optimization parameters' initial value estimates are "
              "to the solution. close multiplies changes to new parameter estimates.  Larger "
              "values result in larger steps toward the solution."},
    {"cut", "Modifies close from one iteration to the next.  If an iteration was unsuccessful, "
            "close is divided by cut, while a successful step results in close being multiplied "
            "by cut squared."},
    {"difsiz", "Determines the increment in a parameter value used to compute numerical "
               "derivatives.  The increment used is difsiz*max(value,parmin), where value is the "
               "parameter value.  If delta is specified on the .param command, then delta is used "
               "as the increment."},
    {"grad", "Convergence tolerance for the gradient.  If the gradient is less than grad, then "
             "convergence may have been achieved, depending on the outcome of the additional "
             "relin and relout tests."},
    {"itropt", "Maximum number of optimization loop iterations"},
    {"max", "Upper limit for close"},
    {"parmin", "Used in increment selection for derivative computation"},
    {"relin", "Relative input parameter variation for convergence.  If all optimization "
              "parameters (defined with .param) vary by less than this amount (0.1%% by default) "
              "from one iteration to the next, convergence is declared"},
    {"relout", "Relative output parameter variation for convergence.  If the total error defined "
               "by measurement results varies by less than this amount from one iteration to the "
               "next, convergence is declared."},
};

TEST_F(OptimizationHelp, EachKeyHasItsTranslatedTextWhileItHasTheFocus)
{
    const CBracketTranslation translation;
    CScript script;
    script.Do({Open("[Optimization]/[Wizard]")}).Fill(gWayTo(3));
    for (const THelp& rHelp : kHelps)
        script.Do({Focus(rHelp.pKey)})
            .Look({look::Text("description", '[' + std::string(rHelp.pText) + ']')})
            .Do({Focus("back")})
            .Look({look::Text("description", "")});
    gRunWizard(std::move(script));
}

TEST_F(OptimizationHelp, TabWalksThroughTheTexts)
{
    CScript script = gAtStep(3);
    script.Do({Focus("name")}).Look({look::Text("description", "")});
    for (const THelp& rHelp : kHelps)
        script.Do({Key("tab")})
            .Look({look::Focused(rHelp.pKey), look::Text("description", rHelp.pText)});
    script.Do({Key("tab")}).Look({look::Focused("back"), look::Text("description", "")});
    gRunWizard(std::move(script));
}

TEST_F(OptimizationHelp, TheNameHasNoneAndBlanksTheAreaWhenItIsLeft)
{
    gRunWizard(gAtStep(3)
                   .Do({Focus("cut"), Focus("name")})
                   .Look({look::Text("description", "")})
                   .Then([](CDialog& rDialog) {
                       gFindField(rDialog, "description").pControl->SetWindowText("left over");
                   })
                   .Do({Focus("algorithm-type")})
                   .Look({look::Text("description", "")}));
}

TEST_F(OptimizationHelp, TypingKeepsTheTextOfTheField)
{
    gRunWizard(gAtStep(3)
                   .Do({Set("max", "1")})
                   .Look({look::Text("description", "Upper limit for close")}));
}

TEST_F(OptimizationHelp, TheAreaIsBlankAfterAChangeOfStep)
{
    for (const char* pButton : {"back", "continue"}) {
        gRunWizard(gAtStep(3)
                       .Do({Set("name", "m1"), Focus("max"), Click(pButton)})
                       .Look({look::Text("description", "")}));
    }
    gRunWizard(gAtStep(4).Do({Click("back")}).Look({look::Text("description", "")}));
}

TEST_F(OptimizationHelp, AnotherPageTakesTheTextAwayWithTheFocus)
{
    gRunWizard(gAtStep(3)
                   .Do({Focus("max"), Open("Settings/Temperature"), Open(kPage.c_str())})
                   .Look({look::Text("description", ""),
                          look::Text("step-group", "Set optimization algorithm")})
                   .Do({Focus("max")})
                   .Look({look::Text("description", "Upper limit for close")}));
}
} // namespace
