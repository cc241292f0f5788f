#include "cli/SessionTranscript.h"
#include "support/RunProgram.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The page of five steps in the program: `compose` walks them by its button, a session looks at
// each.

namespace
{
using quorvawiz::cli::gSpiceWizard;

struct TRefusal {
    std::vector<std::string> arguments;
    std::string sError;
    int nExitCode = 1;
};

const std::string kNothing = "quorvawiz: the page on display has no command to insert\n";

TEST(Optimization, ComposeInsertsNothingBeforeTheLastStep)
{
    const std::vector<TRefusal> cases{
        {{}, kNothing},
        {{"continue"}, "Missing analysis name.\n" + kNothing},
        {{"analysis-name=#0", "continue"}, "Missing optimization name.\n" + kNothing},
        {{"analysis-name=#0", "optimization-name=o1", "continue", "continue"},
         "Missing measurement name.\n" + kNothing},
        {{"analysis-name=#0", "optimization-name=o1", "continue", "measurement=delay", "target=1n",
          "continue", "parameter-name=w", "minimum=1", "maximum=2", "continue", "name=m1"},
         kNothing},
        {{"analysis-name=#0", "optimization-name=o1", "continue", "measurement=delay", "target=1n",
          "continue", "parameter-name=w", "minimum=1", "maximum=2", "continue",
          "name= ", "continue"},
         "Missing model name.\nMissing model name.\n"},
        {{"measurement=delay"},
         "quorvawiz: \"measurement\" is hidden; the nearest that can be used is \"continue\"\n",
         2},
    };
    for (const TRefusal& rCase : cases) {
        std::vector<std::string> arguments{"compose", "Optimization/Wizard"};
        arguments.insert(arguments.end(), rCase.arguments.begin(), rCase.arguments.end());
        EXPECT_EQ(gRunQuorvawiz(arguments), (TProgramRun{"", rCase.sError, rCase.nExitCode}))
            << testing::PrintToString(arguments);
    }
}

const std::string kOpenOptimization = R"({"op":"open","page":"Optimization/Wizard"})";

std::vector<TExchange> WayToTheLastStep()
{
    return {
        {kOpenOptimization,
         R"({"ok":true,"insert_enabled":false,"fields":{
             "step-group":{"text":"Optimization setup"},
             "analysis-name":{"kind":"drop-down","items":["First AC Analysis","First DC Analysis",
                 "First Transient Analysis","First .step Analysis"]},
             "back":{"visible":false},"continue":{"label":"&Continue >","visible":true}}})"},
        {R"({"op":"set","field":"optimization-name","text":"o1"})", R"({"ok":true})"},
        {R"({"op":"select","field":"analysis-name","entry":"First Transient Analysis"})",
         R"({"ok":true})"},
        {R"({"op":"click","field":"continue"})",
         R"({"ok":true,"insert_enabled":false,"fields":{
             "step-group":{"text":"Set optimization goals"},
             "minimum-value":{"text":"1e-12","visible":true},"weight":{"text":"1"},
             "goal-add":{"enabled":false},"back":{"visible":true},
             "optimization-name":{"visible":false}}})"},
        {R"({"op":"set","field":"measurement","text":"delay"})",
         R"({"ok":true,"fields":{"goal-add":{"enabled":false}}})"},
        {R"({"op":"set","field":"target","text":"1n"})",
         R"({"ok":true,"fields":{"goal-add":{"enabled":true}}})"},
        {R"({"op":"click","field":"goal-add"})",
         R"({"ok":true,"fields":{"goal-list":{"index":0,
             "items":["delay=1n minval=1e-12 weight=1"]}}})"},
        {R"({"op":"click","field":"continue"})", R"({"ok":true})"},
        {R"({"op":"set","field":"parameter-name","text":"w"})", R"({"ok":true})"},
        {R"({"op":"set","field":"minimum","text":"1u"})", R"({"ok":true})"},
        {R"({"op":"set","field":"maximum","text":"5u"})", R"({"ok":true})"},
        {R"({"op":"click","field":"continue"})",
         R"({"ok":true,"insert_enabled":false,"fields":{
             "step-group":{"text":"Set optimization algorithm"},"close":{"text":"0.001"},
             "continue":{"label":" &Continue >"},"description":{"text":""}}})"},
        {R"({"op":"set","field":"name","text":"m1"})", R"({"ok":true})"},
        {R"({"op":"focus","field":"max"})",
         R"({"ok":true,"focus":"max","fields":{"description":{"text":"Upper limit for close"}}})"},
        {R"({"op":"click","field":"continue"})",
         R"({"ok":true,"insert_enabled":true,"command":"","fields":{
             "preview":{"read_only":true,"visible":true},"continue":{"visible":false}}})"},
    };
}

const std::string kBlock =
    R"(.optimize o1 model=m1 analysisname=tran\r\n.paramlimits o1 w minval=1u maxval=5u\r\n)"
    R"(.optgoal o1 delay=1n minval=1e-12 weight=1\r\n)"
    R"(.model m1 opt cendif=1e-9 close=0.001 cut=2 difsiz=1e-3 grad=1e-6\r\n)"
    R"(+      itropt=20 max=600000 parmin=0.1 relin=0.001 relout=0.001)";

TEST(Optimization, ASessionWalksTheStepsAndInsertsTheBlock)
{
    std::vector<TExchange> transcript = WayToTheLastStep();
    transcript.push_back(
        {R"({"op":"state"})", R"({"ok":true,"fields":{"preview":{"text":")" + kBlock + R"("}}})"});
    transcript.push_back({R"({"op":"insert"})", R"({"ok":true,"inserted":[")" + kBlock +
                                                    R"("],"command":")" + kBlock + R"("})"});
    gExpectTranscript(gSpiceWizard(), transcript);
}

TEST(Optimization, WhatIsMissingIsToldInABoxOfThePageAndQuestionsAreAskedInOneOfTheProgram)
{
    gExpectTranscript(
        gSpiceWizard(),
        {
            {kOpenOptimization, R"({"ok":true})"},
            {R"({"op":"click","field":"continue"})",
             R"({"ok":true,"boxes":[{"text":"Missing analysis name.","caption":"SPICE","flags":64,
                 "owner":"COptimizationWizardPage"}]})"},
            {R"({"op":"set","field":"analysis-name","text":"mysweep"})", R"({"ok":true})"},
            {R"({"op":"set","field":"optimization-name","text":"o1"})", R"({"ok":true})"},
            {R"({"op":"click","field":"continue"})", R"({"ok":true,"boxes":[]})"},
            {R"({"op":"set","field":"measurement","text":"delay"})", R"({"ok":true})"},
            {R"({"op":"set","field":"target","text":"1n"})", R"({"ok":true})"},
            {R"({"op":"click","field":"goal-add"})", R"({"ok":true})"},
            {R"({"op":"answers","answers":["yes"]})", R"({"ok":true})"},
            {R"({"op":"click","field":"goal-delete"})",
             R"({"ok":true,"boxes":[{"text":
                 "Are you sure you want to delete the selected parameter from the list?",
                 "caption":"quorvawiz","flags":4,"owner":null}],"fields":{"goal-list":{"items":[]},
                 "goal-delete":{"enabled":false},"goal-clear":{"enabled":false}}})"},
        });
}

TEST(Optimization, AnOpenOfAnotherPageAndBackDisablesInsert)
{
    std::vector<TExchange> transcript = WayToTheLastStep();
    const std::vector<TExchange> more{
        {R"({"op":"open","page":"Settings/Temperature"})", R"({"ok":true,"insert_enabled":true})"},
        {kOpenOptimization,
         R"({"ok":true,"insert_enabled":false,"fields":{"preview":{"visible":true}}})"},
        {R"({"op":"insert"})", R"({"ok":false,"error":"\"insert\" is disabled","inserted":[]})"},
        {R"({"op":"click","field":"back"})", R"({"ok":true,"insert_enabled":false})"},
        {R"({"op":"click","field":"continue"})", R"({"ok":true,"insert_enabled":true})"},
        // An open of the page on display doesn't show it anew.
        {kOpenOptimization, R"({"ok":true,"insert_enabled":true})"},
        // Nor does a reopened wizard know of it.
        {R"({"op":"reopen"})", R"({"ok":true})"},
        {kOpenOptimization, R"({"ok":true,"insert_enabled":false,"fields":{
             "optimization-name":{"text":"","visible":true}}})"},
    };
    transcript.insert(transcript.end(), more.begin(), more.end());
    gExpectTranscript(gSpiceWizard(), transcript);
}

TEST(Optimization, AFieldNamedCloseIsNotTheButtonOfTheWizard)
{
    std::vector<TExchange> transcript = WayToTheLastStep();
    const std::vector<TExchange> more{
        {R"({"op":"click","field":"back"})", R"({"ok":true})"},
        {R"({"op":"set","field":"close","text":"0.5"})",
         R"({"ok":true,"focus":"close","fields":{"close":{"text":"0.5"}}})"},
        {R"({"op":"click","field":"close"})",
         R"({"ok":false,"error":"\"close\" is a box for text: it takes a text"})"},
        {R"({"op":"close"})", R"({"ok":true,"page":null})"},
    };
    transcript.insert(transcript.end(), more.begin(), more.end());
    gExpectTranscript(gSpiceWizard(), transcript);
}
} // namespace
