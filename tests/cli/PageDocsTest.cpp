#include "cli/Shell.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

// The user's pages in docs/pages: what they say is what the program does.

namespace
{
namespace fs = std::filesystem;

const fs::path kDocuments = QUORVAWIZ_SOURCE_DIR "/docs/pages";
/// Asks the script with these options more, and then what `pThen` says.
std::string Check(const std::string& rsOptions, const char* pThen)
{
    std::string sCommand =
        "'" QUORVAWIZ_SOURCE_DIR "/scripts/page-docs' --check --program quorvawiz ";
    sCommand += rsOptions;
    sCommand += pThen;
    return gRunShell(sCommand);
}

std::string TextOf(const fs::path& rFile)
{
    std::ostringstream text;
    text << std::ifstream(rFile).rdbuf();
    return text.str();
}

std::vector<fs::path> Documents()
{
    std::vector<fs::path> documents;
    for (const auto& rEntry : fs::directory_iterator(kDocuments))
        documents.push_back(rEntry.path());
    return documents;
}

/// The lines of an example: what is typed, in one line, and what comes of it.
struct TExample {
    std::string sTyped;
    std::string sOutput;
};

/// The examples of a section, which stand in blocks; a backslash joins their lines.
std::vector<TExample> ExamplesOf(const std::string& rsSection)
{
    std::vector<TExample> examples;
    std::istringstream lines(rsSection);
    bool bInside = false;
    bool bTyping = false;
    for (std::string sLine; std::getline(lines, sLine);) {
        if (sLine == "```") {
            bInside = !bInside;
            continue;
        }
        if (!bInside)
            continue;
        const bool bBegins = sLine.starts_with("$ ");
        if (bBegins)
            examples.emplace_back();
        if (bBegins || bTyping) {
            bTyping = sLine.ends_with('\\');
            if (bTyping)
                sLine.pop_back();
            examples.back().sTyped += bBegins ? sLine.substr(2) : sLine;
        } else if (!examples.empty()) {
            examples.back().sOutput += sLine + '\n';
        }
    }
    return examples;
}

/// The sections of a document, each with its title as the first line.
std::vector<std::string> SectionsOf(const std::string& rsDocument)
{
    std::vector<std::string> sections;
    for (std::size_t nAt = rsDocument.find("\n## "); nAt != std::string::npos;) {
        const std::size_t nNext = rsDocument.find("\n## ", nAt + 1);
        sections.push_back(rsDocument.substr(nAt + 4, nNext - nAt - 4));
        nAt = nNext;
    }
    return sections;
}

TEST(PageDocs, TheTablesOfFieldsAreThoseOfTheProgram)
{
    EXPECT_EQ(Check("", "&& echo true"), "true\n") << "scripts/page-docs writes them anew";
}

TEST(PageDocs, ATableThatIsOutOfDateIsFound)
{
    const fs::path folder = fs::path(testing::TempDir()) / "page-docs";
    fs::remove_all(folder);
    fs::create_directories(folder);
    const std::string sText = TextOf(kDocuments / "current-source.md");
    const std::size_t nAt = sText.find("`bit-stream`");
    ASSERT_NE(nAt, std::string::npos);
    std::ofstream(folder / "current-source.md") << std::string(sText).replace(nAt, 12, "`stream`");
    const std::string sFolder = "--folder '" + folder.string() + "'";
    EXPECT_EQ(Check(sFolder, " || echo $?"), "page-docs: current-source.md is out of date\n1\n");

    // A page that is built and has no section is missed, too.
    std::ofstream(folder / "current-source.md") << sText.substr(0, sText.find("## Bus"));
    EXPECT_EQ(Check(sFolder, " || echo $?"), "page-docs: current-source.md is out of date\n1\n");
    fs::remove_all(folder);
}

TEST(PageDocs, EverySectionHasAnExampleThatRuns)
{
    ASSERT_FALSE(Documents().empty());
    for (const fs::path& rDocument : Documents()) {
        for (const std::string& rsSection : SectionsOf(TextOf(rDocument))) {
            SCOPED_TRACE(rDocument.stem().string() + ": " +
                         rsSection.substr(0, rsSection.find('\n')));
            const std::vector<TExample> examples = ExamplesOf(rsSection);
            EXPECT_FALSE(examples.empty());
            for (const TExample& rExample : examples) {
                EXPECT_TRUE(rExample.sTyped.starts_with("quorvawiz compose ")) << rExample.sTyped;
                EXPECT_EQ(gRunShell(rExample.sTyped), rExample.sOutput) << rExample.sTyped;
            }
        }
    }
}

TEST(PageDocs, EverySectionHasPicturesThatAreThereAndSmall)
{
    constexpr std::uintmax_t kMostBytes = 25'000;
    for (const fs::path& rDocument : Documents()) {
        for (const std::string& rsSection : SectionsOf(TextOf(rDocument))) {
            SCOPED_TRACE(rDocument.stem().string() + ": " +
                         rsSection.substr(0, rsSection.find('\n')));
            std::size_t nAt = rsSection.find("](../images/");
            EXPECT_NE(nAt, std::string::npos);
            for (; nAt != std::string::npos; nAt = rsSection.find("](../images/", nAt + 1)) {
                const std::size_t nBegin = nAt + 2;
                const fs::path picture =
                    kDocuments / rsSection.substr(nBegin, rsSection.find(')', nBegin) - nBegin);
                ASSERT_TRUE(fs::exists(picture)) << picture;
                EXPECT_GT(fs::file_size(picture), 0U) << picture;
                EXPECT_LE(fs::file_size(picture), kMostBytes) << picture;
            }
        }
    }
}
} // namespace
