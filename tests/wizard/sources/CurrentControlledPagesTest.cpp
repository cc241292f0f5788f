#include "platform/ui/Dialog.h"
#include "platform/ui/RuntimeClass.h"
#include "support/Look.h"
#include "support/Steps.h"
#include "wizard/sources/SourcePageRun.h"

namespace
{
using namespace steps;
using CurrentControlledPages = PageTest;

struct TTwin {
    const char* pPage;
    const char* pTwin;
    std::string sLetter;
    const char* pClass;
    const char* pMissingName;
    const char* pMissingNamePolynomial;
    const char* pMissingGain;
    const char* pIllegal2;
    const char* pIllegal3;
};

const TTwin kTwins[] = {
    {"Current source/Current-controlled", "Voltage source/Current-controlled", "F",
     "CCurrentSourceCurrentControlledPage", "[Missing current-controlled current source name.]",
     "[Missing current-controlled current source name.]", "[Missing current gain value.]",
     "[Controlling voltage source 2 name is not a legal voltage source name (Must begin with "
     "'V').]",
     "[Controlling voltage source 3 name is not a legal voltage source name (Must begin with "
     "'V').]"},
    {"Voltage source/Current-controlled", "Current source/Current-controlled", "H",
     "CVoltageSourceCurrentControlledPage", "[Missing current-controlled voltage source name]",
     "[Missing current-controlled voltage source name.]", "[Missing transresistance value.]",
     "[Controlling voltage source 2 name is not a legal voltage source name (Must start with "
     "'V').]",
     "[Controlling voltage source 3 name is not a legal voltage source name (Must begin with "
     "'V'.)]"},
};

constexpr const char* kIllegal =
    "[Controlling voltage source name is not a legal voltage source name (Must begin with 'V').]";

const TFieldValues kGain{"name=1", "positive-terminal=a", "controlling-source=v1", "gain=2"};
const TFieldValues kPolynomial{"polynomial-sources=on", "name=1", "positive-terminal=a",
                               "controlling-source=v1", "coefficients=0 1"};

TFieldValues Joined(TFieldValues fields, const TFieldValues& rMore)
{
    fields.insert(fields.end(), rMore.begin(), rMore.end());
    return fields;
}

TEST_F(CurrentControlledPages, BuildTheLineWithAGain)
{
    for (const TTwin& rTwin : kTwins)
        gExpectLines(
            rTwin.pPage, kGain,
            {
                {"with the ground", {}, rTwin.sLetter + "1 a GND v1 2", ""},
                {"between two nodes", {"negative-terminal=b"}, rTwin.sLetter + "1 a b v1 2", ""},
                {"a controlling source V1 passes as v1 does",
                 {"controlling-source=V1"},
                 rTwin.sLetter + "1 a GND V1 2",
                 ""},
                {"what is required is trimmed at both ends",
                 {"name= 1 ", "positive-terminal= a ", "controlling-source= v1 ", "gain= 2 "},
                 rTwin.sLetter + "1 a GND v1 2",
                 ""},
                {"the negative terminal isn't trimmed, and may be of blanks",
                 {"negative-terminal= "},
                 rTwin.sLetter + "1 a   v1 2",
                 ""},
                {"what was typed for a polynomial is ignored",
                 {"polynomial-sources=on", "coefficients=0 1", "second-controlling-source=x",
                  "third-controlling-source=y", "polynomial-sources=off"},
                 rTwin.sLetter + "1 a GND v1 2",
                 ""},
            });
}

TEST_F(CurrentControlledPages, BuildTheLineWithAPolynomial)
{
    for (const TTwin& rTwin : kTwins)
        gExpectLines(rTwin.pPage, kPolynomial,
                     {
                         {"of one source: no second one is asked for",
                          {},
                          rTwin.sLetter + "1 a GND POLY(1) v1 0 1",
                          ""},
                         {"of two sources",
                          {"negative-terminal=b", "second-controlling-source=V2"},
                          rTwin.sLetter + "1 a b POLY(2) v1 V2 0 1",
                          ""},
                         {"of three sources",
                          {"second-controlling-source=v2", "third-controlling-source=V3"},
                          rTwin.sLetter + "1 a GND POLY(3) v1 v2 V3 0 1",
                          ""},
                         {"the lines of coefficients are joined",
                          {"coefficients= 0 1\n2\n\n3\n"},
                          rTwin.sLetter + "1 a GND POLY(1) v1 0 1 2  3",
                          ""},
                         {"what is required is trimmed at both ends",
                          {"name= 1 ", "positive-terminal= a ", "controlling-source= v1 ",
                           "coefficients= 0 \n"},
                          rTwin.sLetter + "1 a GND POLY(1) v1 0",
                          ""},
                         {"further sources are not trimmed",
                          {"second-controlling-source=v2 ", "third-controlling-source=v3 "},
                          rTwin.sLetter + "1 a GND POLY(3) v1 v2  v3  0 1",
                          ""},
                         {"a gain left over in the disabled field is ignored",
                          {"polynomial-sources=off", "gain=7", "polynomial-sources=on"},
                          rTwin.sLetter + "1 a GND POLY(1) v1 0 1",
                          ""},
                     });
}

TEST_F(CurrentControlledPages, PutTheirLetterInFrontUnlessTheNameBeginsWithIt)
{
    const auto lines = [](const TTwin& rTwin, const char* pName, const char* pFirst) {
        const std::string sName = std::string("name=") + pName;
        gExpectLines(rTwin.pPage, kGain,
                     {{pName, {sName}, std::string(pFirst) + " a GND v1 2", ""}});
        gExpectLines(rTwin.pPage, kPolynomial,
                     {{pName, {sName}, std::string(pFirst) + " a GND POLY(1) v1 0 1", ""}});
    };
    for (const auto& [pName, pFirst] :
         {std::pair{"f1", "f1"}, {"F1", "F1"}, {"h1", "Fh1"}, {"i1", "Fi1"}})
        lines(kTwins[0], pName, pFirst);
    for (const auto& [pName, pFirst] :
         {std::pair{"h1", "h1"}, {"H1", "H1"}, {"f1", "Hf1"}, {"v1", "Hv1"}})
        lines(kTwins[1], pName, pFirst);
}

TEST_F(CurrentControlledPages, CheckTheFieldsOfAGainInTheirOrder)
{
    for (const TTwin& rTwin : kTwins)
        gExpectLines(rTwin.pPage, {},
                     {
                         {"nothing", {}, "", rTwin.pMissingName},
                         {"a name of blanks",
                          {"name= ", "positive-terminal=a", "controlling-source=v1", "gain=2"},
                          "",
                          rTwin.pMissingName},
                         {"a name", {"name=1", "gain=2"}, "", "[Missing positive terminal name.]"},
                         {"no controlling source",
                          {"name=1", "positive-terminal=a", "gain=2"},
                          "",
                          "[Missing controlling voltage source name.]"},
                         {"a controlling source x1, before the gain is missed",
                          {"name=1", "positive-terminal=a", "controlling-source=x1"},
                          "",
                          kIllegal},
                         {"a current source controls nothing",
                          {"name=1", "positive-terminal=a", "controlling-source=i1", "gain=2"},
                          "",
                          kIllegal},
                         {"no gain",
                          {"name=1", "positive-terminal=a", "controlling-source=v1", "gain= "},
                          "",
                          rTwin.pMissingGain},
                     });
}

TEST_F(CurrentControlledPages, CheckTheFieldsOfAPolynomialInTheirOrder)
{
    for (const TTwin& rTwin : kTwins)
        gExpectLines(rTwin.pPage, {"polynomial-sources=on"},
                     {
                         {"nothing", {}, "", rTwin.pMissingNamePolynomial},
                         {"a name", {"name=1"}, "", "[Missing positive terminal name.]"},
                         {"no controlling source",
                          {"name=1", "positive-terminal=a", "coefficients=1"},
                          "",
                          "[Missing controlling voltage source name.]"},
                         {"a controlling source x1, before the coefficients are missed",
                          {"name=1", "positive-terminal=a", "controlling-source=x1"},
                          "",
                          kIllegal},
                         {"coefficients of line ends, before the further sources are looked at",
                          {"name=1", "positive-terminal=a", "controlling-source=v1",
                           "coefficients=\n \n", "second-controlling-source=x2"},
                          "",
                          "[Missing polynomial coefficients.]"},
                     });
}

TEST_F(CurrentControlledPages, CheckTheFurtherSourcesOfAPolynomial)
{
    for (const TTwin& rTwin : kTwins)
        gExpectLines(
            rTwin.pPage, kPolynomial,
            {
                {"a second source x2", {"second-controlling-source=x2"}, "", rTwin.pIllegal2},
                {"a blank before the second source",
                 {"second-controlling-source= v2"},
                 "",
                 rTwin.pIllegal2},
                {"a second source of blanks", {"second-controlling-source= "}, "", rTwin.pIllegal2},
                {"both wrong: the second is told",
                 {"second-controlling-source=x2", "third-controlling-source=x3"},
                 "",
                 rTwin.pIllegal2},
                {"a third source x3",
                 {"second-controlling-source=v2", "third-controlling-source=x3"},
                 "",
                 rTwin.pIllegal3},
                {"a blank before the third source",
                 {"second-controlling-source=v2", "third-controlling-source= v3"},
                 "",
                 rTwin.pIllegal3},
                {"a third source without a second",
                 {"third-controlling-source=v3"},
                 "",
                 "[Missing controlling voltage source 2 name.]"},
                {"without a second, the letter of the third isn't looked at",
                 {"third-controlling-source=x3"},
                 "",
                 "[Missing controlling voltage source 2 name.]"},
            });
}

TEST_F(CurrentControlledPages, LeaveTheLineSoFarWhenAFurtherSourceIsRefused)
{
    for (const TTwin& rTwin : kTwins) {
        for (const TFieldValues& rMore :
             {TFieldValues{"second-controlling-source=x"},
              TFieldValues{"third-controlling-source=v3"},
              TFieldValues{"second-controlling-source=v2", "third-controlling-source=x"}})
            gExpectLeft(rTwin.pPage, Joined(kPolynomial, rMore), rTwin.sLetter + "1 a GND POLY(");
    }
}

TEST_F(CurrentControlledPages, KeepTheLineBeforeWhenAFieldIsMissingOrTheFirstSourceIsRefused)
{
    for (const TTwin& rTwin : kTwins) {
        for (const char* const pWrong :
             {"name=", "positive-terminal=", "controlling-source=", "controlling-source=x"}) {
            gExpectKept(rTwin.pPage, Joined(kGain, {pWrong}));
            gExpectKept(rTwin.pPage, Joined(kPolynomial, {pWrong}));
        }
        gExpectKept(rTwin.pPage, Joined(kGain, {"gain="}));
        gExpectKept(rTwin.pPage, Joined(kPolynomial, {"coefficients="}));
    }
}

TEST_F(CurrentControlledPages, RememberWithAPolynomialTheGainThatIsDisabled)
{
    gExpectRemembered("Current-controlled",
                      {"gain= 7 ", "polynomial-sources=on", "name= 1 ", "positive-terminal= a ",
                       "controlling-source= v1 ", "coefficients= 0\n1 ",
                       "second-controlling-source=v2 ", "third-controlling-source=v3"},
                      {"name=2", "third-controlling-source=x"},
                      {"name=1", "positive-terminal=a", "negative-terminal=GND",
                       "controlling-source=v1", "gain=7", "coefficients=0\n1",
                       "second-controlling-source=v2 ", "third-controlling-source=v3"});
}

TEST_F(CurrentControlledPages, RememberWithAGainWhatWasTypedForAPolynomial)
{
    gExpectRemembered("Current-controlled",
                      {"polynomial-sources=on", "coefficients= 0\n1 ",
                       "second-controlling-source= x ", "third-controlling-source=y",
                       "polynomial-sources=off", "name=1", "positive-terminal=a",
                       "controlling-source=v1", "gain=2"},
                      {"gain="},
                      {"name=1", "positive-terminal=a", "negative-terminal=GND",
                       "controlling-source=v1", "gain=2", "coefficients=0\n1",
                       "second-controlling-source= x ", "third-controlling-source=y"});
}

TEST_F(CurrentControlledPages, RememberTheCheckBoxEachForItself)
{
    for (const TTwin& rTwin : kTwins) {
        CRememberedBase::ResetAll();
        gCompose(rTwin.pPage, kPolynomial);
        gRunWizard(CScript()
                       .Do({Open(rTwin.pPage)})
                       .Look({look::Checked("polynomial-sources", 1)})
                       .Do({Open(rTwin.pTwin)})
                       .Look({look::Checked("polynomial-sources", 0)}));
    }
}

TEST_F(CurrentControlledPages, RememberTheCheckBoxOnlyAfterASuccess)
{
    gRunWizard({Open(kTwins[0].pPage), Check("polynomial-sources", true), Insert()});
    gRunWizard(
        CScript().Do({Open(kTwins[0].pPage)}).Look({look::Checked("polynomial-sources", 0)}));
}

std::vector<CScript::TAction> PolynomialEnabled(bool bPolynomial)
{
    return {look::Enabled("name"),
            look::Enabled("positive-terminal"),
            look::Enabled("negative-terminal"),
            look::Enabled("controlling-source"),
            look::Enabled("gain", !bPolynomial),
            look::Enabled("coefficients", bPolynomial),
            look::Enabled("second-controlling-source", bPolynomial),
            look::Enabled("third-controlling-source", bPolynomial)};
}

TEST_F(CurrentControlledPages, EnableWhatTheCheckBoxAsksForAndClearNothing)
{
    for (const TTwin& rTwin : kTwins)
        gRunWizard(CScript()
                       .Do({Open(rTwin.pPage)})
                       .Look(PolynomialEnabled(false))
                       .Do({Set("gain", "2"), Check("polynomial-sources", true)})
                       .Look(PolynomialEnabled(true))
                       .Do({Set("coefficients", "1"), Set("second-controlling-source", "v2"),
                            Check("polynomial-sources", false)})
                       .Look(PolynomialEnabled(false))
                       .Look({look::Text("gain", "2"), look::Text("coefficients", "1"),
                              look::Text("second-controlling-source", "v2")}));
}

TEST_F(CurrentControlledPages, EnableWhatTheRememberedCheckBoxAsksFor)
{
    for (const TTwin& rTwin : kTwins) {
        gCompose(rTwin.pPage, kPolynomial);
        gRunWizard(CScript().Do({Open(rTwin.pPage)}).Look(PolynomialEnabled(true)));
    }
}

TEST_F(CurrentControlledPages, BeginWithTheFieldsOfAPolynomialDisabledInTheirTemplate)
{
    for (const TTwin& rTwin : kTwins) {
        std::vector<std::string> disabled;
        const auto pPage = CRuntimeClass::FromName(rTwin.pClass)->CreateObject();
        for (const TControlRow& rRow : dynamic_cast<CDialog&>(*pPage).GetTemplate().rows)
            if (rRow.nFlags & kDisabled && rRow.kind != EControl::Label)
                disabled.emplace_back(rRow.pKey);
        EXPECT_EQ(disabled, (std::vector<std::string>{"coefficients", "second-controlling-source",
                                                      "third-controlling-source"}));
    }
}

TEST_F(CurrentControlledPages, StartANewLineWithReturnInTheCoefficients)
{
    const auto outcome = gRunWizard(CScript()
                                        .Do({Open(kTwins[0].pPage)})
                                        .Fill(kPolynomial)
                                        .Do({Focus("coefficients"), Key("enter")})
                                        .Look({look::Text("coefficients", "0 1\r\n")}));
    EXPECT_TRUE(outcome.inserted.empty());
}

TEST_F(CurrentControlledPages, ShowTheirFields)
{
    EXPECT_EQ(gShownBy("CCurrentSourceCurrentControlledPage"), R"(
'Current-controlled current source'
  name: &CCCS name:
  positive-terminal: &Positive terminal:
  negative-terminal: &Negative terminal (GND):
  controlling-source: C&ontrolling voltage source:
  polynomial-sources: Po&lynomial sources
  gain: C&urrent gain:
  coefficients: Pol&ynomial coefficients: (lines)
  second-controlling-source: Con&trolling voltage source #2:
  third-controlling-source: Cont&rolling voltage source #3:
)");
    EXPECT_EQ(gShownBy("CVoltageSourceCurrentControlledPage"), R"(
'Current-controlled voltage source'
  name: &CCVS name:
  positive-terminal: &Positive terminal:
  negative-terminal: &Negative terminal (GND):
  controlling-source: C&ontrolling voltage source:
  polynomial-sources: Po&lynomial sources
  gain: Tr&ansresistance (in Ohm):
  coefficients: Pol&ynomial coefficients: (lines)
  second-controlling-source: Con&trolling voltage source #2:
  third-controlling-source: Cont&rolling voltage source #3:
)");
}
} // namespace
