#include "cli/SessionTranscript.h"

#include <gtest/gtest.h>

// The session with the real wizard: its sweep dialog, and the pages that no node leads to.

namespace
{
using quorvawiz::cli::gSpiceWizard;

TEST(SessionWizard, APressOnASweepButtonOpensTheDialogThatTheNextRequestsAddress)
{
    gExpectTranscript(
        gSpiceWizard(),
        {
            {R"({"op":"open","page":"Analysis/Transient"})", R"({"ok":true,"dialog":null})"},
            {R"({"op":"set","field":"maximum-time-step","text":"1n"})", R"({"ok":true})"},
            {R"({"op":"set","field":"simulation-length","text":"100n"})", R"({"ok":true})"},
            {R"({"op":"click","field":"sweep"})", R"({"ok":true,"dialog":{"title":"Sweep"}})"},
            {R"({"op":"select","field":"sweep-type","entry":"Monte Carlo"})", R"({"ok":true})"},
            {R"({"op":"click","field":"accept"})",
             R"({"ok":true,"dialog":{"title":"Sweep"},
                 "messages":["Missing number of runs to be performed."]})"},
            {R"({"op":"set","field":"start","text":"10"})", R"({"ok":true})"},
            {R"({"op":"click","field":"accept"})",
             R"({"ok":true,"dialog":null,"page":"Analysis/Transient",
                 "fields":{"sweep-summary-1":{"text":"Monte"}}})"},
            {R"({"op":"insert"})", R"({"ok":true,"inserted":[".tran 1n 100n sweep monte=10"]})"},
        });
}

TEST(SessionWizard, APageWithoutANodeOpensByItsClass)
{
    gExpectTranscript(
        gSpiceWizard(),
        {
            {R"({"op":"open","page":"CAnalysisACPage"})",
             R"({"ok":true,"page":"CAnalysisACPage","insert_enabled":true})"},
            {R"({"op":"insert"})",
             R"({"ok":true,"inserted":[],"messages":["Missing number of frequency samples."]})"},
            {R"({"op":"open","page":"CAnalysisDCSweepPage"})",
             R"({"ok":true,"page":"CAnalysisDCSweepPage","insert_enabled":true})"},
            {R"({"op":"set","field":"source-name-2","text":"i1"})", R"({"ok":true})"},
            {R"({"op":"insert"})",
             R"({"ok":true,"inserted":[],
                 "messages":["Incomplete specification for sweep direction 2."]})"},
        });
}
} // namespace
