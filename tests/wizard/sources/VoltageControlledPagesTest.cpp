#include "support/Look.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "wizard/frame/PageText.h"
#include "wizard/sources/SourcePageRun.h"
#include "wizard/sources/VoltageControlledForm.h"

namespace
{
using namespace steps;
using VoltageControlledPages = PageTest;

struct TTwin {
    const char* pPage;
    const char* pTwin;
    std::string sLetter;
    const char* pMissingName;
    const char* pMissingNamePolynomial;
    const char* pMissingPositive;
    const char* pMissingGain;
};

const TTwin kCurrent{"Current source/Voltage-controlled",
                     "Voltage source/Voltage-controlled",
                     "G",
                     "[Missing voltage-controlled current source name.]",
                     "[Missing voltage-controlled current source name]",
                     "[Missing controlled positive terminal name.]",
                     "[Missing transconductance.]"};
const TTwin kVoltage{"Voltage source/Voltage-controlled",
                     "Current source/Voltage-controlled",
                     "E",
                     "[Missing voltage-controlled voltage source name.]",
                     "[Missing voltage-controlled voltage source name.]",
                     "[Missing positive terminal name.]",
                     "[Missing voltage gain.]"};

constexpr const char* kMissingFirst = "[Missing controlling positive terminal name.]";
constexpr const char* kMissing2 = "[Missing controlled source 2 positive terminal name.]";
constexpr const char* kMissing3 = "[Missing controlled source 3 positive terminal name.]";

const TFieldValues kLinear{"name=1", "positive-terminal=a", "first-control-field=c", "gain=2"};
const TFieldValues kPolynomial{"mode=Polynomial", "name=1", "positive-terminal=a",
                               "first-control-field=c", "coefficients=0 1"};
const TFieldValues kExpression{"mode=Non-linear expression", "name=1", "positive-terminal=a"};

TFieldValues Joined(TFieldValues fields, const TFieldValues& rMore)
{
    fields.insert(fields.end(), rMore.begin(), rMore.end());
    return fields;
}

TEST_F(VoltageControlledPages, BuildTheLineWithAGain)
{
    for (const TTwin& rTwin : {kCurrent, kVoltage})
        gExpectLines(
            rTwin.pPage, kLinear,
            {
                {"with the ground twice", {}, rTwin.sLetter + "1 a GND c GND 2", ""},
                {"between nodes",
                 {"negative-terminal=b", "second-control-field=d"},
                 rTwin.sLetter + "1 a b c d 2",
                 ""},
                {"what is required is trimmed at both ends",
                 {"name= 1 ", "positive-terminal= a ", "first-control-field= c ", "gain= 2 "},
                 rTwin.sLetter + "1 a GND c GND 2",
                 ""},
                {"the negative terminals aren't trimmed, and may be of blanks",
                 {"negative-terminal= ", "second-control-field=  "},
                 rTwin.sLetter + "1 a   c    2",
                 ""},
                {"what was typed in other modes is ignored",
                 {"mode=Polynomial", "coefficients=7", "third-positive=x", "mode=Linear"},
                 rTwin.sLetter + "1 a GND c GND 2",
                 ""},
            });
}

TEST_F(VoltageControlledPages, BuildTheLineWithAPolynomial)
{
    for (const TTwin& rTwin : {kCurrent, kVoltage})
        gExpectLines(
            rTwin.pPage, kPolynomial,
            {
                {"of one pair", {}, rTwin.sLetter + "1 a GND POLY(1) c GND 0 1", ""},
                {"of two pairs",
                 {"negative-terminal=b", "second-control-field=d", "second-positive=e",
                  "second-negative=f"},
                 rTwin.sLetter + "1 a b POLY(2) c d e f 0 1",
                 ""},
                {"of two pairs with the ground",
                 {"second-positive=e"},
                 rTwin.sLetter + "1 a GND POLY(2) c GND e GND 0 1",
                 ""},
                {"of three pairs",
                 {"second-positive=e", "second-negative=f", "third-positive=g", "third-negative=h"},
                 rTwin.sLetter + "1 a GND POLY(3) c GND e f g h 0 1",
                 ""},
                {"of three pairs with the ground",
                 {"second-positive=e", "third-positive=g"},
                 rTwin.sLetter + "1 a GND POLY(3) c GND e GND g GND 0 1",
                 ""},
                {"the lines of coefficients are joined",
                 {"coefficients= 0 1\n2\n\n3\n"},
                 rTwin.sLetter + "1 a GND POLY(1) c GND 0 1 2  3",
                 ""},
                {"further pairs aren't trimmed, and may be of blanks",
                 {"second-positive= ", "second-negative=f ", "third-positive= g",
                  "third-negative=  "},
                 rTwin.sLetter + "1 a GND POLY(3) c GND   f   g    0 1",
                 ""},
                {"a gain left over is ignored",
                 {"mode=Linear", "gain=7", "mode=Polynomial"},
                 rTwin.sLetter + "1 a GND POLY(1) c GND 0 1",
                 ""},
            });
}

TEST_F(VoltageControlledPages, BuildTheLineWithAnExpression)
{
    gExpectLines(kCurrent.pPage, kExpression,
                 {
                     {"a current, with the ground as its charge",
                      {"first-control-field=v(c)*2"},
                      "G1 a GND cur='v(c)*2' chg='GND'",
                      ""},
                     {"a current and a charge",
                      {"first-control-field=v(c)", "second-control-field=1n"},
                      "G1 a GND cur='v(c)' chg='1n'",
                      ""},
                     {"a charge alone: the current is optional",
                      {"second-control-field=1n"},
                      "G1 a GND chg='1n'",
                      ""},
                     {"neither: the ground is a charge expression", {}, "G1 a GND chg='GND'", ""},
                     {"the current is trimmed, the charge isn't",
                      {"first-control-field= v(c) ", "second-control-field= 1n "},
                      "G1 a GND cur='v(c)' chg=' 1n '",
                      ""},
                     {"apostrophes stay as they are",
                      {"first-control-field='x'"},
                      "G1 a GND cur=''x'' chg='GND'",
                      ""},
                 });
    gExpectLines(
        kVoltage.pPage, kExpression,
        {
            {"a voltage", {"first-control-field=v(c)+1"}, "E1 a GND vol='v(c)+1'", ""},
            {"a voltage between two nodes",
             {"negative-terminal=b", "first-control-field= v(c) "},
             "E1 a b vol='v(c)'",
             ""},
            {"the second controlling field is ignored",
             {"mode=Linear", "second-control-field=d", "mode=Non-linear expression",
              "first-control-field=v(c)"},
             "E1 a GND vol='v(c)'",
             ""},
            {"no voltage", {"first-control-field= "}, "", "[Missing voltage expression.]"},
            {"no name", {"name="}, "", kVoltage.pMissingName},
            {"neither", {"name=", "positive-terminal="}, "", kVoltage.pMissingName},
            {"no positive terminal", {"positive-terminal= "}, "", kVoltage.pMissingPositive},
        });
}

// No user gets there: by the time of the check an empty charge expression is the ground. So the
// rule is asked without the page.
TEST_F(VoltageControlledPages, MissACurrentOrChargeExpressionWhereNeitherIsGiven)
{
    const auto missing = [](const ::VoltageControlled::TTwin& rTwin, const char* pFirst,
                            const char* pSecond) {
        TVoltageControlledFields fields;
        fields.msFirstControl = pFirst;
        fields.msSecondControl = pSecond;
        const char* const pMissing = gMissingExpression(fields, rTwin);
        return pMissing ? gShownText(pMissing) : CString();
    };
    const CBracketTranslation translation;
    const auto& rCurrent = ::VoltageControlled::kCurrent;
    EXPECT_EQ(missing(rCurrent, "", ""), "[Missing current or charge expression.]");
    EXPECT_EQ(missing(rCurrent, "x", ""), "");
    EXPECT_EQ(missing(rCurrent, "", "x"), "");
    const auto& rVoltage = ::VoltageControlled::kVoltage;
    EXPECT_EQ(missing(rVoltage, "", "GND"), "[Missing voltage expression.]");
    EXPECT_EQ(missing(rVoltage, "x", "GND"), "");
}

TEST_F(VoltageControlledPages, PutTheirLetterInFrontUnlessTheNameBeginsWithIt)
{
    struct TName {
        const TTwin& rTwin;
        std::string sName;
        std::string sFirst;
    };
    for (const auto& [rTwin, sName, sFirst] :
         {TName{kCurrent, "g1", "g1"}, TName{kCurrent, "G1", "G1"}, TName{kCurrent, "e1", "Ge1"},
          TName{kVoltage, "e1", "e1"}, TName{kVoltage, "E1", "E1"}, TName{kVoltage, "g1", "Eg1"}}) {
        const TFieldValues name{"name=" + sName};
        gExpectLines(rTwin.pPage, kLinear, {{"linear", name, sFirst + " a GND c GND 2", ""}});
        gExpectLines(rTwin.pPage, kPolynomial,
                     {{"polynomial", name, sFirst + " a GND POLY(1) c GND 0 1", ""}});
        gExpectLines(
            rTwin.pPage, Joined(kExpression, {"first-control-field=x"}),
            {{"expression", name,
              sFirst + (&rTwin == &kCurrent ? " a GND cur='x' chg='GND'" : " a GND vol='x'"), ""}});
    }
}

TEST_F(VoltageControlledPages, CheckTheFieldsOfAGainInTheirOrder)
{
    for (const TTwin& rTwin : {kCurrent, kVoltage})
        gExpectLines(rTwin.pPage, {},
                     {
                         {"nothing", {}, "", rTwin.pMissingName},
                         {"a name of blanks",
                          {"name= ", "positive-terminal=a", "first-control-field=c", "gain=2"},
                          "",
                          rTwin.pMissingName},
                         {"a name", {"name=1"}, "", rTwin.pMissingPositive},
                         {"no controlling terminal",
                          {"name=1", "positive-terminal=a", "first-control-field= "},
                          "",
                          kMissingFirst},
                         {"no gain",
                          {"name=1", "positive-terminal=a", "first-control-field=c", "gain= "},
                          "",
                          rTwin.pMissingGain},
                     });
}

TEST_F(VoltageControlledPages, CheckTheFieldsOfAPolynomialInTheirOrder)
{
    for (const TTwin& rTwin : {kCurrent, kVoltage})
        gExpectLines(
            rTwin.pPage, {"mode=Polynomial"},
            {
                {"nothing", {}, "", rTwin.pMissingNamePolynomial},
                {"a name", {"name=1"}, "", rTwin.pMissingPositive},
                {"no controlling terminal", {"name=1", "positive-terminal=a"}, "", kMissingFirst},
                {"coefficients of line ends, before the further pairs are looked at",
                 {"name=1", "positive-terminal=a", "first-control-field=c", "coefficients=\n \n",
                  "third-positive=x"},
                 "",
                 "[Missing polynomial coefficients.]"},
            });
}

TEST_F(VoltageControlledPages, CheckTheFurtherPairsOfAPolynomial)
{
    for (const TTwin& rTwin : {kCurrent, kVoltage})
        gExpectLines(
            rTwin.pPage, kPolynomial,
            {
                {"only a third pair", {"third-positive=x", "third-negative=y"}, "", kMissing2},
                {"a third positive terminal", {"third-positive=x"}, "", kMissing2},
                {"a second negative terminal, though its pair wouldn't count",
                 {"second-negative=x"},
                 "",
                 kMissing2},
                {"a third negative terminal", {"third-negative=x"}, "", kMissing3},
                {"a third negative terminal behind a whole second pair",
                 {"second-positive=e", "second-negative=f", "third-negative=x"},
                 "",
                 kMissing3},
                {"both negative terminals: the second is told",
                 {"second-negative=x", "third-negative=y"},
                 "",
                 kMissing2},
            });
}

TEST_F(VoltageControlledPages, LeaveTheLineSoFarWhenAFurtherPairIsRefused)
{
    for (const TTwin& rTwin : {kCurrent, kVoltage}) {
        for (const char* const pMore :
             {"third-positive=x", "second-negative=x", "third-negative=x"})
            gExpectLeft(rTwin.pPage, Joined(kPolynomial, {pMore}), rTwin.sLetter + "1 a GND POLY(");
    }
}

TEST_F(VoltageControlledPages, KeepTheLineBeforeWhenAFieldIsMissing)
{
    for (const TTwin& rTwin : {kCurrent, kVoltage}) {
        for (const char* const pMissing : {"name=", "positive-terminal=", "first-control-field="}) {
            gExpectKept(rTwin.pPage, Joined(kLinear, {pMissing}));
            gExpectKept(rTwin.pPage, Joined(kPolynomial, {pMissing}));
        }
        gExpectKept(rTwin.pPage, Joined(kLinear, {"gain="}));
        gExpectKept(rTwin.pPage, Joined(kPolynomial, {"coefficients="}));
    }
    gExpectKept(kVoltage.pPage, kExpression);
    gExpectKept(kVoltage.pPage, Joined(kExpression, {"name=", "first-control-field=x"}));
    gExpectKept(kVoltage.pPage,
                Joined(kExpression, {"positive-terminal=", "first-control-field=x"}));
}

// --- the failure that counts as a success

TEST_F(VoltageControlledPages, AFailedExpressionOfACurrentIsToldAndThenInsertedAsASuccess)
{
    struct TCase {
        TFieldValues fields;
        const char* pMessage;
    };
    const CBracketTranslation translation;
    for (const TCase& rCase :
         {TCase{{"name= "}, "[Missing voltage-controlled current source name.]"},
          TCase{{"positive-terminal= "}, "[Missing controlled positive terminal name.]"},
          TCase{{"name=", "positive-terminal="},
                "[Missing voltage-controlled current source name.]"}}) {
        CRememberedBase::ResetAll();
        const auto outcome = gRunWizard(CScript()
                                            .Do({Open("[Current source]/[Voltage-controlled]")})
                                            .Fill(kExpression)
                                            .Fill(rCase.fields)
                                            .Do({Insert()})
                                            .Look({look::Command("")}));
        EXPECT_EQ(outcome.inserted, std::vector<std::string>{""});
        EXPECT_EQ(outcome.messages, std::vector<std::string>{rCase.pMessage}) << "one box";
    }
}

TEST_F(VoltageControlledPages, AFailedExpressionOfACurrentInsertsTheLastLineAgain)
{
    const auto outcome = gRunWizard(CScript()
                                        .Do({Open(kCurrent.pPage)})
                                        .Fill(kLinear)
                                        .Do({Insert()})
                                        .Fill({"mode=Non-linear expression", "name="})
                                        .Do({Insert()}));
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>{"G1 a GND c GND 2", "G1 a GND c GND 2"}));
    EXPECT_EQ(outcome.messages,
              std::vector<std::string>{"Missing voltage-controlled current source name."});
}

TEST_F(VoltageControlledPages, AFailedExpressionOfACurrentIsRemembered)
{
    gCompose(kCurrent.pPage, Joined(kExpression, {"name=", "first-control-field= x "}));
    gRunWizard(
        CScript()
            .Do({Open(kCurrent.pPage)})
            .Look({look::Checked("mode", 2), look::Text("name", ""),
                   look::Text("positive-terminal", "a"), look::Text("negative-terminal", "GND"),
                   look::Text("first-control-field", "x"),
                   look::Text("second-control-field", "GND")}));
}

TEST_F(VoltageControlledPages, AFailedExpressionOfAVoltageIsNot)
{
    gCompose(kVoltage.pPage, Joined(kExpression, {"name=2"}));
    gRunWizard(CScript()
                   .Do({Open(kVoltage.pPage)})
                   .Look({look::Checked("mode", 0), look::Text("name", "")}));
}

// --- what is remembered

TEST_F(VoltageControlledPages, RememberWithAPolynomialTheGain)
{
    gExpectRemembered("Voltage-controlled",
                      {"gain= 7 ", "mode=Polynomial", "name= 1 ", "positive-terminal= a ",
                       "first-control-field= c ", "coefficients= 0\n1 ", "second-positive=e ",
                       "third-positive=g", "third-negative=h"},
                      {"name=2", "second-positive=", "second-negative="},
                      {"name=1", "positive-terminal=a", "negative-terminal=GND",
                       "first-control-field=c", "second-control-field=GND", "gain=7",
                       "coefficients=0\n1", "second-positive=e ", "second-negative=GND",
                       "third-positive=g", "third-negative=h"});
}

TEST_F(VoltageControlledPages, RememberWithAGainWhatWasTypedForAPolynomial)
{
    gExpectRemembered("Voltage-controlled",
                      {"mode=Polynomial", "coefficients= 0\n1 ", "second-negative= f",
                       "third-positive=g", "mode=Linear", "name=1", "positive-terminal=a",
                       "first-control-field=c", "second-control-field=d", "gain=7"},
                      {"gain="},
                      // Meant: only a polynomial fills in the negative terminals of further pairs.
                      {"name=1", "positive-terminal=a", "negative-terminal=GND",
                       "first-control-field=c", "second-control-field=d", "gain=7",
                       "coefficients=0\n1", "second-positive=", "second-negative= f",
                       "third-positive=g", "third-negative="});
}

TEST_F(VoltageControlledPages, RememberWithAnExpressionWhatWasTypedForAGainAndAPolynomial)
{
    for (const TTwin& rTwin : {kCurrent, kVoltage}) {
        CRememberedBase::ResetAll();
        const auto outcome = gRunWizard(CScript()
                                            .Do({Open(rTwin.pPage)})
                                            .Fill({"gain=7", "mode=Polynomial", "coefficients=0\n1",
                                                   "second-positive=e", "third-negative=h"})
                                            .Fill(Joined(kExpression, {"first-control-field=x"}))
                                            .Do({Insert()}));
        EXPECT_EQ(outcome.inserted.size(), 1U);
        gRunWizard(
            CScript()
                .Do({Open(rTwin.pPage)})
                .Look({look::Checked("mode", 2), look::Text("gain", "7"),
                       look::Text("coefficients", "0\r\n1"), look::Text("second-positive", "e"),
                       look::Text("second-negative", ""), look::Text("third-positive", ""),
                       look::Text("third-negative", "h")}));
    }
}

TEST_F(VoltageControlledPages, RememberTheModeEachForItself)
{
    for (const TTwin& rTwin : {kCurrent, kVoltage}) {
        CRememberedBase::ResetAll();
        gCompose(rTwin.pPage, kPolynomial);
        gRunWizard(CScript()
                       .Do({Open(rTwin.pPage)})
                       .Look({look::Checked("mode", 1)})
                       .Do({Open(rTwin.pTwin)})
                       .Look({look::Checked("mode", 0)}));
    }
}

TEST_F(VoltageControlledPages, AnExpressionOfAVoltageRemembersTheGroundAsSecondControl)
{
    gCompose(kVoltage.pPage, Joined(kExpression, {"first-control-field=x"}));
    gRunWizard(CScript()
                   .Do({Open(kVoltage.pPage)})
                   .Look({look::Checked("mode", 2), look::Text("second-control-field", "GND"),
                          look::Text("second-negative", "")}));
}

TEST_F(VoltageControlledPages, KeepInTheControlsWhatWasTypedSoThatASecondPressSucceeds)
{
    for (const TTwin& rTwin : {kCurrent, kVoltage}) {
        const auto outcome = gRunWizard(
            CScript()
                .Do({Open(rTwin.pPage)})
                .Fill(kPolynomial)
                .Do({Insert(), Insert()})
                .Look({look::Text("negative-terminal", ""), look::Text("second-control-field", ""),
                       look::Text("second-negative", ""), look::Text("third-negative", "")}));
        EXPECT_EQ(outcome.inserted.size(), 2U);
    }
}

TEST_F(VoltageControlledPages, TheNextRunMissesThePositiveTerminalsOfTheGroundsThatItRemembers)
{
    for (const TTwin& rTwin : {kCurrent, kVoltage}) {
        gCompose(rTwin.pPage, kPolynomial);
        const auto outcome = gRunWizard({Open(rTwin.pPage), Insert()});
        EXPECT_EQ(outcome.inserted, std::vector<std::string>{});
        EXPECT_EQ(outcome.messages,
                  std::vector<std::string>{"Missing controlled source 2 positive terminal name."});
    }
}
} // namespace
