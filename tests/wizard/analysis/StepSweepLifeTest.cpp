// What the dialog "Sweep" keeps from one opening to the next.

#include "support/TranslationScope.h"
#include "wizard/analysis/SweepDialogRun.h"

namespace
{
using namespace steps;

class StepSweepLife : public CSweepDialogTest
{
protected:
    /// Accepts a linear sweep of vdd from 1 to 5 by 1.
    void AcceptLinear()
    {
        EXPECT_EQ(Open(CScript().Do({Set("parameter-name", "vdd"), Set("start", "1"),
                                     Set("stop", "5"), Set("increment", "1"), Click("accept")})),
                  std::vector<std::string>());
        ExpectLinear();
    }
    void ExpectLinear() const
    {
        EXPECT_EQ(mpDialog->GetResult(), "sweep lin param vdd 1 5 1");
        EXPECT_EQ(mpDialog->GetResultType(), ESweepType::Linear);
        EXPECT_EQ(mpDialog->GetResultParameter(), ESweepParameter::ParameterName);
    }
    /// What the dialog shows at its first opening.
    static std::vector<CScript::TAction> Fresh()
    {
        return {look::Text("sweep-type", "Linear"),
                look::Text("parameter-type", "Parameter name"),
                look::Shown("parameter-name"),
                look::Shown("model-name", false),
                look::Text("parameter-name", ""),
                look::Text("model-name", ""),
                look::Text("start", ""),
                look::Text("stop", ""),
                look::Text("list-of-values", ""),
                look::Text("increment", ""),
                look::Text("number-of-points", ""),
                look::Enabled("increment"),
                look::Enabled("number-of-points")};
    }
    /// What it shows of the accepted linear sweep.
    static std::vector<CScript::TAction> Linear()
    {
        return {look::Text("sweep-type", "Linear"),
                look::Text("parameter-type", "Parameter name"),
                look::Text("parameter-name", "vdd"),
                look::Text("start", "1"),
                look::Text("stop", "5"),
                look::Text("increment", "1"),
                look::Enabled("number-of-points", false)};
    }
};

TEST_F(StepSweepLife, NotAskedToStartAnewWithoutAResultItSelectsNoType)
{
    CScript script;
    script.Look({look::Selected("sweep-type", -1), look::Shown("parameter-type", false),
                 look::Shown("start", false), look::Shown("list-of-values", false)});
    script.Do({Select("sweep-type", "Data"), Set("start", "d1"), Click("accept")});
    mpDialog->Prepare("sweep ", false);
    script.Run(mDesktop, [this] { mpDialog->DoModal(); });
    EXPECT_EQ(mpDialog->GetResult(), "sweep data=d1");
}

TEST_F(StepSweepLife, AcceptedWithoutATypeItHasNoResultButThePrefix)
{
    CScript script;
    script.Do({Click("accept")});
    mpDialog->Prepare("sweep ", false);
    script.Run(mDesktop, [this] { mpDialog->DoModal(); });
    EXPECT_EQ(mpDialog->GetResultType(), ESweepType::NotUsed);
    EXPECT_EQ(mpDialog->GetResult(), "sweep ");
}

TEST_F(StepSweepLife, AFreshDialogHasNoResult)
{
    EXPECT_EQ(mpDialog->GetResult(), "");
    EXPECT_EQ(mpDialog->GetResultType(), ESweepType::NotUsed);
    EXPECT_EQ(static_cast<int>(mpDialog->GetResultType()), -1);
    EXPECT_EQ(static_cast<int>(mpDialog->GetResultParameter()), 0);
}

TEST_F(StepSweepLife, TheFirstOpeningShowsALinearSweepOfAParameterNameWithTheFocusOnItsType)
{
    Open(CScript().Look(Fresh()).Look({look::Focused("sweep-type")}).Do({Click("cancel")}));
}

TEST_F(StepSweepLife, CancelOnAFirstOpeningLeavesNoSweepAndTheNextOpeningIsFresh)
{
    for (const char* pType : {"Linear", "Octave", "Poi", "Optimization"}) {
        CScript script;
        script.Do({Select("parameter-type", "Model parameter"), Set("parameter-name", "w"),
                   Set("model-name", "nmos"), Set("start", "1"), Set("stop", "2"),
                   Set("increment", "3"), Select("sweep-type", "List"),
                   Set("list-of-values", "4\r\n5"), Select("sweep-type", pType), Click("cancel")});
        Open(std::move(script));
        EXPECT_EQ(mpDialog->GetResultType(), ESweepType::NotUsed);
        EXPECT_EQ(mpDialog->GetResult(), "");
        Open(CScript().Look(Fresh()).Do({Click("cancel")}));
    }
}

TEST_F(StepSweepLife, AnAcceptedSweepComesBackWithAllThatWasTyped)
{
    AcceptLinear();
    Open(CScript().Look(Linear()).Do({Click("cancel")}));
    ExpectLinear();
}

TEST_F(StepSweepLife, EveryParameterTypeComesBackWithItsNames)
{
    const CBracketTranslation translation;
    const struct {
        const char* pParameter;
        const char* pLabel;
        bool bName;
        bool bModel;
    } cases[] = {{"Model parameter", "[Para&meter name:]", true, true},
                 {"Parameter", "[Para&meter:]", true, false},
                 {"Parameter name", "[Para&meter name:]", true, false},
                 {"Source", "[So&urce name:]", true, false},
                 {"Temperature", "", false, false}};
    for (const auto& rCase : cases) {
        SCOPED_TRACE(rCase.pParameter);
        Renew();
        Open(CScript().Do({Select("parameter-type", "Model parameter"), Set("parameter-name", "w"),
                           Set("model-name", "nmos"), Select("sweep-type", "List"),
                           Select("parameter-type", rCase.pParameter), Set("list-of-values", "1"),
                           Click("accept")}));
        Open(CScript()
                 .Look({look::Text("sweep-type", "List"),
                        look::Text("parameter-type", rCase.pParameter),
                        look::Shown("parameter-name", rCase.bName),
                        look::Label("parameter-name", rCase.pLabel),
                        look::Shown("model-name", rCase.bModel), look::Label("model-name", ""),
                        look::Text("list-of-values", "1")})
                 .Do({Click("cancel")}));
    }
}

TEST_F(StepSweepLife, ATypeWithoutAParameterComesBackWithoutItsFields)
{
    for (const char* pType : {"Data", "Monte Carlo", "Optimization"}) {
        SCOPED_TRACE(pType);
        Renew();
        CScript script;
        script.Do({Select("parameter-type", "Model parameter"), Set("stop", "m1"),
                   Set("start", "10"), Set("increment", "om"), Select("sweep-type", pType),
                   Click("accept")});
        EXPECT_EQ(Open(std::move(script)), std::vector<std::string>());
        EXPECT_EQ(mpDialog->GetResultParameter(), ESweepParameter::ModelParameter);
        Open(CScript()
                 .Look({look::Text("sweep-type", pType), look::Shown("parameter-type", false),
                        look::Text("parameter-type", "Model parameter"),
                        look::Shown("parameter-name", false), look::Shown("model-name", false),
                        look::Text("start", "10")})
                 .Do({Click("cancel")}));
    }
}

TEST_F(StepSweepLife, CancelAfterAnAcceptedSweepKeepsItEvenIfTheTypeWasChanged)
{
    AcceptLinear();
    Open(CScript().Do({Select("sweep-type", "Monte Carlo"), Set("start", "10"), Click("cancel")}));
    ExpectLinear();
    Open(CScript().Look(Linear()).Do({Click("cancel")}));
}

TEST_F(StepSweepLife, WhatAHandlerPulledBeforeCancelStaysForTheNextOpening)
{
    AcceptLinear();
    Open(CScript().Do({Set("start", "9"), Set("increment", "2"), Click("cancel")}));
    ExpectLinear();
    Open(CScript()
             .Look({look::Text("start", "9"), look::Text("increment", "2")})
             .Do({Set("start", "7"), Click("cancel")}));
    Open(CScript().Look({look::Text("start", "9")}).Do({Click("accept")}));
    EXPECT_EQ(mpDialog->GetResult(), "sweep lin param vdd 9 5 2");
}

TEST_F(StepSweepLife, WhatAFailedAcceptTrimmedIsTrimmedAtTheNextOpening)
{
    AcceptLinear();
    Open(CScript()
             .Do({Set("start", " 9 "), Set("stop", " "), Click("accept")})
             .Look({look::Text("start", " 9 ")})
             .Do({Click("cancel")}));
    Open(CScript().Look({look::Text("start", "9 "), look::Text("stop", "")}).Do({Click("cancel")}));
}

TEST_F(StepSweepLife, AMissingStartLeavesTheTypeAsItWas)
{
    AcceptLinear();
    EXPECT_EQ(Open(CScript().Do({Set("start", ""), Click("accept"), Click("cancel")})),
              std::vector<std::string>{"Missing start value."});
    ExpectLinear();
}

TEST_F(StepSweepLife, AMissingParameterNameIsTheOnlyWayBackToNoSweep)
{
    AcceptLinear();
    EXPECT_EQ(Open(CScript().Do({Set("parameter-name", " "), Click("accept"), Click("cancel")})),
              std::vector<std::string>{"Missing parameter name."});
    EXPECT_EQ(mpDialog->GetResultType(), ESweepType::NotUsed);
    EXPECT_EQ(mpDialog->GetResult(), "sweep lin param vdd 1 5 1") << "left over, unused";
    Open(CScript().Look(Fresh()).Do({Click("cancel")}));
}

TEST_F(StepSweepLife, CancelAfterAMissingParameterEmptiesTheEdits)
{
    AcceptLinear();
    Open(CScript()
             .Do({Set("parameter-name", ""), Click("accept")})
             .Look({look::Text("start", "1")})
             .Then([](CDialog& rDialog) {
                 gRunStep(rDialog, Click("cancel"));
                 for (const char* pKey : {"parameter-name", "model-name", "start", "stop",
                                          "list-of-values", "increment", "number-of-points"})
                     look::Text(pKey, "")(rDialog); // still open to the end of this action
             }));
}

TEST_F(StepSweepLife, ASweepMendedAfterAMissingParameterIsAccepted)
{
    AcceptLinear();
    Open(CScript().Do({Set("parameter-name", ""), Click("accept"), Set("parameter-name", "vdd"),
                       Click("accept")}));
    ExpectLinear();
}

TEST_F(StepSweepLife, EnterInAnEditEndsItWithoutANewResultButKeepsWhatWasTyped)
{
    AcceptLinear();
    Open(CScript().Do({Set("start", "3"), Key("enter")}));
    ExpectLinear();
    Open(CScript().Look({look::Text("start", "3")}).Do({Click("cancel")}));
}

TEST_F(StepSweepLife, EscapeEndsItWithoutANewResultAndKeepsNothingOfWhatWasTyped)
{
    AcceptLinear();
    mnResult = IDCANCEL;
    Open(CScript().Do({Set("start", "3"), Key("escape")}));
    ExpectLinear();
    mnResult = IDOK;
    Open(CScript().Look({look::Text("start", "1")}).Do({Click("cancel")}));
}

TEST_F(StepSweepLife, EnterInAListOfValuesStartsANewLine)
{
    Open(CScript()
             .Do({Select("sweep-type", "List"), Set("list-of-values", "1"), Key("enter")})
             .Look({look::Text("list-of-values", "1\r\n")})
             .Do({Click("cancel")}));
}

TEST_F(StepSweepLife, EnterOnAButtonPressesIt)
{
    EXPECT_EQ(Open(CScript().Do({Focus("accept"), Key("enter"), Focus("cancel"), Key("enter")})),
              std::vector<std::string>{"Missing parameter name."});
}
} // namespace
