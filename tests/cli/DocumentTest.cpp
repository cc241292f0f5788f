#include "cli/Shell.h"
#include "support/RunProgram.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// The documents' examples are run, so that they stay true.

namespace
{
/// The lines of all blocks of a document that begin with this line.
std::vector<std::string> LinesOfBlocks(const std::string& rsDocument, std::string_view sFence)
{
    std::ifstream document(QUORVAWIZ_SOURCE_DIR "/docs/" + rsDocument);
    if (!document)
        throw std::runtime_error("can't read docs/" + rsDocument);
    std::vector<std::string> lines;
    bool bInside = false;
    bool bWanted = false;
    for (std::string sLine; std::getline(document, sLine);) {
        if (sLine.starts_with("```")) {
            bInside = !bInside;
            bWanted = bInside && sLine == sFence;
        } else if (bWanted) {
            lines.push_back(sLine);
        }
    }
    return lines;
}

/// Gives a command the requests of its document, and expects the replies.
void ExpectTranscript(const std::string& rsCommand)
{
    std::string sRequests;
    std::string sReplies;
    for (const std::string& rsLine : LinesOfBlocks(rsCommand + ".md", "```transcript")) {
        ASSERT_TRUE(rsLine.starts_with("> ") || rsLine.starts_with("< ")) << rsLine;
        (rsLine.front() == '>' ? sRequests : sReplies) += rsLine.substr(2) + '\n';
    }
    ASSERT_FALSE(sRequests.empty());
    EXPECT_EQ(gRunQuorvawiz({rsCommand}, sRequests), (TProgramRun{sReplies, "", 0}));
}

TEST(Documents, TheSessionsTranscriptIsReplayed)
{
    const std::string sFile = "session-example.params"; // the document's own, in this folder
    ASSERT_EQ(gRunQuorvawiz({"make-example", sFile, "--devices", "4"}), (TProgramRun{"", "", 0}));
    ExpectTranscript("session");
    std::filesystem::remove(sFile);
}

TEST(Documents, TheCallsTranscriptIsReplayed)
{
    ExpectTranscript("call");
}

TEST(Documents, EveryFunctionThatCanBeCalledIsTold)
{
    std::ifstream document(QUORVAWIZ_SOURCE_DIR "/docs/call.md");
    std::string sTold;
    for (std::string sLine; std::getline(document, sLine);) {
        const auto nEnd = sLine.find(")` |");
        if (sLine.starts_with("| `") && nEnd != std::string::npos)
            sTold += sLine.substr(3, nEnd - 2) + '\n';
    }
    EXPECT_EQ(gRunQuorvawiz({"call", "--list"}), (TProgramRun{sTold, "", 0}));
}

TEST(Documents, TheTableOfOptionsIsTheProgramsAndAnOldOneIsFound)
{
    const std::string sScript =
        "'" QUORVAWIZ_SOURCE_DIR "/scripts/option-docs' --check --program quorvawiz";
    EXPECT_EQ(gRunShell(sScript + " && echo true"), "true\n")
        << "scripts/option-docs writes it anew";

    const CTempFolder folder;
    const std::string sFile = "'" + folder.Path("options.md") + "'";
    gRunShell("sed s/volts/amps/ '" QUORVAWIZ_SOURCE_DIR "/docs/options.md' >" + sFile);
    EXPECT_EQ(gRunShell(sScript + " --file " + sFile + " || echo $?"),
              "option-docs: options.md is out of date\n1\n");
}

TEST(Documents, TheCommandLinesExamplesAreRun)
{
    const std::vector<std::string> lines = LinesOfBlocks("cli.md", "```");
    ASSERT_FALSE(lines.empty());
    std::string sExpected;
    std::string sOutput;
    for (const std::string& rsLine : lines) {
        sExpected += rsLine + '\n';
        if (rsLine.starts_with("$ "))
            sOutput += rsLine + '\n' + gRunShell(rsLine.substr(2));
    }
    EXPECT_EQ(sOutput, sExpected);
}
} // namespace
