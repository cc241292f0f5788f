// What "Accept" checks and composes.

#include "support/TranslationScope.h"
#include "wizard/analysis/SweepDialogRun.h"

namespace
{
using namespace steps;

class StepSweepAccept : public CSweepDialogTest
{
};

std::vector<TStep> Type(const char* pType)
{
    return {Select("sweep-type", pType)};
}

struct TAcceptCase {
    const char* pName;
    std::vector<TStep> steps;
    const char* pResult;
};

const TAcceptCase kExamples[] = {
    {"linear by increment",
     {Set("parameter-name", "r1"), Set("start", "1"), Set("stop", "5"), Set("increment", "1")},
     "sweep lin param r1 1 5 1"},
    {"linear by points",
     {Set("parameter-name", "r1"), Set("start", "1"), Set("stop", "5"),
      Set("number-of-points", "3")},
     "sweep param r1 lin 3 1 5"},
    {"linear of a model parameter",
     {Select("parameter-type", "Model parameter"), Set("parameter-name", "w"),
      Set("model-name", "nmos"), Set("start", "1u"), Set("stop", "2u"), Set("increment", "0.5u")},
     "sweep lin modparam w(nmos) 1u 2u 0.5u"},
    {"decade",
     {Select("sweep-type", "Decade"), Select("parameter-type", "Temperature"), Set("start", "1"),
      Set("stop", "100"), Set("number-of-points", "5")},
     "sweep dec temp 1 100 5"},
    {"octave",
     {Select("sweep-type", "Octave"), Select("parameter-type", "Source"),
      Set("parameter-name", "vin"), Set("start", "1"), Set("stop", "8"),
      Set("number-of-points", "2")},
     "sweep oct source vin 1 8 2"},
    {"list",
     {Select("sweep-type", "List"), Select("parameter-type", "Parameter"),
      Set("parameter-name", "r1"), Set("list-of-values", "1\r\n2")},
     "sweep list r1 1 2"},
    {"poi",
     {Select("sweep-type", "Poi"), Select("parameter-type", "Source"), Set("parameter-name", "vin"),
      Set("stop", "2"), Set("list-of-values", "1 2")},
     "sweep source vin poi 2 1 2"},
    {"poi of a plain parameter has two blanks",
     {Select("sweep-type", "Poi"), Select("parameter-type", "Parameter"),
      Set("parameter-name", "r1"), Set("stop", "2"), Set("list-of-values", "1\r\n2")},
     "sweep  r1 poi 2 1 2"},
    {"data", {Select("sweep-type", "Data"), Set("start", "d1")}, "sweep data=d1"},
    {"Monte Carlo",
     {Select("sweep-type", "Monte Carlo"), Set("start", "10"), Set("stop", "3")},
     "sweep monte=10 seed=3"},
    {"Monte Carlo without a seed",
     {Select("sweep-type", "Monte Carlo"), Set("start", "10")},
     "sweep monte=10"},
    {"optimization",
     {Select("sweep-type", "Optimization"), Set("start", "run1"), Set("stop", "m1"),
      Set("increment", "om")},
     "sweep optimize=optrun1 results=m1 model=om"},
    {"optimization of a name with opt",
     {Select("sweep-type", "Optimization"), Set("start", "opt1"), Set("stop", "m1"),
      Set("increment", "om")},
     "sweep optimize=opt1 results=m1 model=om"},
    {"optimization of a name that ends in opt",
     {Select("sweep-type", "Optimization"), Set("start", "myopt"), Set("stop", "m1"),
      Set("increment", "om")},
     "sweep optimize=optmyopt results=m1 model=om"},
    {"trimmed on the left only",
     {Select("parameter-type", "Model parameter"), Set("parameter-name", " \tw "),
      Set("model-name", "  nmos "), Set("start", " 1 "), Set("stop", " 2 "),
      Set("increment", " 3 ")},
     "sweep lin modparam w (nmos ) 1  2  3 "},
    {"the number of points is trimmed on the left",
     {Set("parameter-name", "r1"), Set("start", "1"), Set("stop", "5"),
      Set("number-of-points", " 3 ")},
     "sweep param r1 lin 3  1 5"},
    {"a list is trimmed on the left, and its last line end vanishes",
     {Select("sweep-type", "List"), Select("parameter-type", "Temperature"),
      Set("list-of-values", "\r\n 25\r\n75 \r\n")},
     "sweep list temp 25 75 "},
};

TEST_F(StepSweepAccept, ComposesTheClauseBehindThePrefix)
{
    for (const TAcceptCase& rCase : kExamples) {
        SCOPED_TRACE(rCase.pName);
        Renew();
        EXPECT_EQ(Open(CScript().Do(rCase.steps).Do({Click("accept")})),
                  std::vector<std::string>());
        EXPECT_EQ(mpDialog->GetResult(), rCase.pResult);
    }
}

// --- the checks, in order: each line fills what the message before asked for

struct TCheckCase {
    const char* pName;
    std::vector<TStep> steps;
    const char* pMessage;
};

const std::vector<TCheckCase> kChecks[] = {
    {
        {"linear, nothing", {}, "[Missing parameter name.]"},
        {"the start", {Set("parameter-name", "r1")}, "[Missing start value.]"},
        {"the stop", {Set("start", "1")}, "[Missing stop value.]"},
        {"the step", {Set("stop", "5")}, "[Missing increment or total number of points.]"},
        {"a blank is nothing",
         {Set("increment", " ")},
         "[Missing increment or total number of points.]"},
    },
    {
        {"decade, nothing", Type("Decade"), "[Missing parameter name.]"},
        {"the start", {Set("parameter-name", "r1")}, "[Missing start value.]"},
        {"the stop", {Set("start", "1")}, "[Missing stop value.]"},
        {"the points", {Set("stop", "5")}, "[Missing number of points per decade.]"},
    },
    {
        {"octave, nothing", Type("Octave"), "[Missing parameter name.]"},
        {"the start", {Set("parameter-name", "r1")}, "[Missing start value.]"},
        {"the stop", {Set("start", "1")}, "[Missing stop value.]"},
        {"the points", {Set("stop", "5")}, "[Missing number of points per octave.]"},
    },
    {
        {"list, nothing", Type("List"), "[Missing parameter name.]"},
        {"the values", {Set("parameter-name", "r1")}, "[Missing values.]"},
        {"line ends are nothing", {Set("list-of-values", "\r\n ")}, "[Missing values.]"},
    },
    {
        {"poi, nothing", Type("Poi"), "[Missing parameter name.]"},
        {"the values and the number", {Set("parameter-name", "r1")}, "[Missing values.]"},
        {"the values alone", {Set("stop", "2")}, "[Missing values.]"},
        {"the number alone",
         {Set("stop", ""), Set("list-of-values", "1")},
         "[Missing total number of points.]"},
    },
    {
        {"data, nothing", Type("Data"), "[Missing dataname.]"},
        {"a blank is nothing", {Set("start", " ")}, "[Missing dataname.]"},
    },
    {
        {"Monte Carlo, nothing", Type("Monte Carlo"), "[Missing number of runs to be performed.]"},
        {"a seed alone", {Set("stop", "3")}, "[Missing number of runs to be performed.]"},
    },
    {
        {"optimization, nothing", Type("Optimization"),
         "[Missing parameter names to be optimized.]"},
        {"the results", {Set("start", "run1")}, "[Missing measurement results.]"},
        {"the model", {Set("stop", "m1")}, "[Missing model name.]"},
    },
    {
        {"a model parameter, nothing",
         {Select("parameter-type", "Model parameter")},
         "[Missing parameter name.]"},
        {"the model", {Set("parameter-name", "w")}, "[Missing model name.]"},
        {"the name before the model",
         {Set("parameter-name", " "), Set("model-name", "nmos")},
         "[Missing parameter name.]"},
        {"complete", {Set("parameter-name", "w")}, "[Missing start value.]"},
    },
    {
        {"a parameter", {Select("parameter-type", "Parameter")}, "[Missing parameter name.]"},
        {"complete", {Set("parameter-name", "r1")}, "[Missing start value.]"},
    },
    {
        {"a source", {Select("parameter-type", "Source")}, "[Missing source name.]"},
        {"complete", {Set("parameter-name", "vin")}, "[Missing start value.]"},
    },
    {
        {"a temperature needs no name",
         {Select("parameter-type", "Temperature")},
         "[Missing start value.]"},
    },
};

TEST_F(StepSweepAccept, ChecksInOrderAndTheFirstFailureIsTheOnlyOne)
{
    const CBracketTranslation translation;
    for (const auto& rStory : kChecks) {
        SCOPED_TRACE(rStory.front().pName);
        CScript script;
        std::vector<std::string> expected;
        for (const TCheckCase& rCase : rStory) {
            script.Do(rCase.steps).Do({Click("accept")}).Look({look::Title("Sweep")});
            expected.emplace_back(rCase.pMessage);
        }
        EXPECT_EQ(Open(std::move(script.Do({Click("cancel")}))), expected);
        EXPECT_EQ(mpDialog->GetResult(), "");
        EXPECT_EQ(mpDialog->GetResultType(), ESweepType::NotUsed);
    }
}

TEST_F(StepSweepAccept, EveryTypeWithAParameterChecksItFirst)
{
    for (const char* pType : {"Linear", "Decade", "Octave", "List", "Poi"})
        EXPECT_EQ(
            Open(CScript().Do({Select("sweep-type", pType), Select("parameter-type", "Source"),
                               Click("accept"), Click("cancel")})),
            std::vector<std::string>{"Missing source name."})
            << pType;
}

TEST_F(StepSweepAccept, ForPoiTheTotalIsTheSecondEditNotTheFourth)
{
    const std::vector<TStep> poi{Select("sweep-type", "Poi"), Select("parameter-type", "Source"),
                                 Set("parameter-name", "vin"), Set("list-of-values", "1 2")};
    Open(CScript()
             .Do(poi)
             .Look({look::Shown("number-of-points", false),
                    look::Label("stop", "T&otal number of points for sweep:")})
             .Do({Set("stop", "2"), Click("accept")}));
    EXPECT_EQ(mpDialog->GetResult(), "sweep source vin poi 2 1 2");
}

TEST_F(StepSweepAccept, AMessageIsABoxOfTheDialogItself)
{
    Open(CScript().Do({Click("accept"), Click("cancel")}));
    ASSERT_EQ(mBoxes.size(), 1U);
    EXPECT_EQ(mBoxes[0].sOwnerClass, "CStepSweepPage");
    EXPECT_EQ(mBoxes[0].box.sCaption, CString("SPICE"));
    EXPECT_EQ(mBoxes[0].box.nFlags, 64U);
}

TEST_F(StepSweepAccept, AFailedCheckLeavesTheControlsAsTheyWereTyped)
{
    Open(CScript()
             .Do({Set("parameter-name", "  r1 "), Click("accept")})
             .Look({look::Text("parameter-name", "  r1 "), look::Focused("accept")})
             .Do({Click("cancel")}));
}

TEST_F(StepSweepAccept, EveryTypeWithEveryParameterGivesItsTypesBack)
{
    for (int nType = 0; nType < 8; ++nType) {
        for (int nParameter = 0; nParameter < 5; ++nParameter) {
            CScript script;
            script.Do({Select("sweep-type", 3), Select("parameter-type", nParameter)});
            // The change of type resets the parameter type, except for the last three types.
            script.Do({Select("sweep-type", nType)});
            if (nType <= 4)
                script.Do({Select("parameter-type", nParameter)});
            script.Then([](CDialog& rDialog) {
                for (const char* pKey : {"parameter-name", "model-name", "start", "stop",
                                         "list-of-values", "increment", "number-of-points"})
                    gRunStep(rDialog, Set(pKey, "1")); // those that are shown
            });
            EXPECT_EQ(Open(std::move(script.Do({Click("accept")}))), std::vector<std::string>());
            EXPECT_EQ(static_cast<int>(mpDialog->GetResultType()), nType);
            EXPECT_EQ(static_cast<int>(mpDialog->GetResultParameter()), nParameter);
        }
    }
}
} // namespace
