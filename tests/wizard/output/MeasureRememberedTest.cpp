// What the page of measurements shows in the next run.

#include "support/PageTest.h"
#include "wizard/output/MeasureLooks.h"

#include <gtest/gtest.h>

#include <utility>

namespace
{
using namespace steps;
using namespace measureLooks;

using MeasureRemembered = PageTest;

const TKeys kEverything{
    "analysis-type=AC",
    "result-name= r ",
    "suppress-printing=on",
    "goal= 1 ",
    "minimum-value= 2 ",
    "weight= 3 ",
    "at-value= 4 ",
    "trigger-mode=When",
    "trigger-signal=a",
    "trigger-value=b",
    "trigger-crossing-kind=rise",
    "trigger-crossing-number=2",
    "trigger-delay=c",
    "target-signal=d",
    "target-value=e",
    "target-crossing-kind=fall",
    "target-crossing-number=3",
    "target-delay=f",
    "measurement-type=Signal statistics",
    "output-signal=t",
    "kind=Maximum",
    "reported-signal=u",
    "measurement-type=Error function",
    "first-signal=g",
    "second-signal=h",
    "from=i",
    "to=j",
    "kind=err2",
    "measurement-type=Expression evaluation",
    "expression= k ",
    "measurement-type=Find-when",
    "find-signal=l",
    "when-x-value=m",
    "when-row=#2",
    "signal-row-first-signal=n",
    "signal-row-second-signal=o",
    "signal-row-crossing-kind=rise",
    "signal-row-crossing-number=4",
    "signal-row-delay=p",
    "when-row=#1",
    "find-choice=#0",
    "when-signal=q",
    "when-value=r",
    "value-row-crossing-kind=fall",
    "value-row-crossing-number=last",
    "value-row-delay=s",
};

/// What the next run shows of it.
const std::vector<std::pair<const char*, const char*>> kShown{
    {"analysis-type", "AC"},
    {"result-name", "r "},
    {"measurement-type", "Find-when"},
    {"goal", "1 "},
    {"minimum-value", "2 "},
    {"weight", "3 "},
    {"at-value", " 4 "},
    {"trigger-signal", "a"},
    {"trigger-value", "b"},
    {"trigger-crossing-kind", "rise"},
    {"trigger-crossing-number", "2"},
    {"trigger-delay", "c"},
    {"target-signal", "d"},
    {"target-value", "e"},
    {"target-crossing-kind", "fall"},
    {"target-crossing-number", "3"},
    {"target-delay", "f"},
    {"output-signal", "t"},
    {"reported-signal", "u"},
    {"first-signal", "g"},
    {"second-signal", "h"},
    {"from", "i"},
    {"to", "j"},
    {"expression", " k "},
    {"find-signal", "l"},
    {"when-x-value", "m"},
    {"signal-row-first-signal", "n"},
    {"signal-row-second-signal", "o"},
    {"signal-row-crossing-kind", "rise"},
    {"signal-row-crossing-number", "4"},
    {"signal-row-delay", "p"},
    {"when-signal", "q"},
    {"when-value", "r"},
    {"value-row-crossing-kind", "fall"},
    {"value-row-crossing-number", "last"},
    {"value-row-delay", "s"},
};

std::vector<CScript::TAction> ShownTexts()
{
    std::vector<CScript::TAction> looks;
    for (const auto& [pKey, pText] : kShown)
        looks.push_back(look::Text(pKey, pText));
    return looks;
}

TEST_F(MeasureRemembered, ASuccessRemembersEveryFieldOfEveryType)
{
    const auto outcome = gRunWizard(CScript().Do({Open(kPath)}).Fill(kEverything).Do({Insert()}));
    EXPECT_EQ(outcome.inserted,
              std::vector<std::string>{".measure ac r  when q=r td=s fall=last goal=1  minval=2  "
                                       "weight=3  off"});
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look(ShownTexts())
                   .Look({look::Checked("suppress-printing", 1), look::Checked("find-choice", 0),
                          look::Checked("when-row", 1), look::Shown("find-group"),
                          look::Enabled("find-signal", false), FindXEnabled(true),
                          look::Enabled("when-x-value", false)})
                   .Look(Enabled(kValueFields, true))
                   .Look(Enabled(kSignalFields, false))
                   .Do({Select("measurement-type", kDifference)})
                   .Look({look::Checked("trigger-mode", 1), look::Enabled("at-value", false)})
                   .Look(Enabled(kTriggerFields, true)));
}

TEST_F(MeasureRemembered, AFailureRemembersNothingAndLeavesTheControlsAsTheyAre)
{
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Fill(kEverything)
                   .Do({Insert(), Set("result-name", "other"), Set("when-value", ""),
                        Choose("when-row", 2), Set("signal-row-second-signal", ""), Insert()})
                   .Look({look::Text("result-name", "other")}));
    gRunWizard(CScript().Do({Open(kPath)}).Look(ShownTexts()).Look({look::Checked("when-row", 1)}));
}

TEST_F(MeasureRemembered, AnExpressionIsRememberedTrimmedWhenItIsUsed)
{
    gRunWizard(
        CScript()
            .Do({Open(kPath), Set("result-name", " e"), Select("measurement-type", kExpression),
                 Set("expression", " a "), Insert()})
            .Look({look::Text("expression", " a "), look::Text("result-name", " e")}));
    gRunWizard(CScript()
                   .Do({Open(kPath)})
                   .Look({look::Text("expression", "a"), look::Text("result-name", "e"),
                          look::Text("measurement-type", "Expression evaluation"),
                          look::Shown("expression")}));
}

TEST_F(MeasureRemembered, TheKindComesBackAsTheFirst)
{
    for (const auto& [nType, pFirst] :
         {std::pair{kStatistics, "x at maximum"}, {kErrorFunction, "err"}}) {
        CRememberedBase::ResetAll();
        gRunWizard(CScript()
                       .Do({Open(kPath), Set("result-name", "e"), Select("measurement-type", nType),
                            Select("kind", 3)})
                       .Fill(nType == kStatistics ? TKeys{"output-signal=a"}
                                                  : TKeys{"first-signal=a", "second-signal=b"})
                       .Do({Insert()}));
        gRunWizard(
            CScript()
                .Do({Open(kPath)})
                .Look({look::Text("measurement-type", kTypes[nType]), look::Text("kind", pFirst)}));
    }
}
} // namespace
