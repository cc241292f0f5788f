#include "cli/Shell.h"
#include "platform/base/Ascii.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
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

/// A copy of all documents, to be changed.
class CCopiedDocuments
{
public:
    CCopiedDocuments() { fs::copy(kDocuments, Path("")); }

    fs::path Path(const char* pName) const { return mFolder.Path(pName); }
    /// What the check of the copies says, and its exit code if it isn't content.
    std::string Check() const
    {
        return ::Check("--folder '" + Path("").string() + "'", " || echo $?");
    }

private:
    CTempFolder mFolder;
};

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
    const CCopiedDocuments copies;
    EXPECT_EQ(copies.Check(), "");
    const std::string sText = TextOf(kDocuments / "current-source.md");
    const std::size_t nAt = sText.find("`bit-stream`");
    ASSERT_NE(nAt, std::string::npos);
    std::ofstream(copies.Path("current-source.md"))
        << std::string(sText).replace(nAt, 12, "`stream`");
    EXPECT_EQ(copies.Check(), "page-docs: current-source.md is out of date\n1\n");

    // A page that is built and has no section is missed, too.
    std::ofstream(copies.Path("current-source.md")) << sText.substr(0, sText.find("## Bus"));
    EXPECT_EQ(copies.Check(), "page-docs: current-source.md is out of date\n1\n");
}

TEST(PageDocs, ACategoryWithoutADocumentIsMissed)
{
    const CCopiedDocuments copies;
    fs::remove(copies.Path("initialization.md"));
    EXPECT_EQ(copies.Check(), "page-docs: initialization.md is missing\n1\n");
}

TEST(PageDocs, EveryBuiltPageHasASectionInTheDocumentOfItsCategory)
{
    int nPages = 0;
    for (const auto& rPage : nlohmann::json::parse(gRunShell("quorvawiz pages --json"))) {
        const std::string sPath = rPage["path"].is_string() ? rPage["path"] : nlohmann::json("");
        const std::size_t nSlash = sPath.find('/');
        if (!rPage["built"] || nSlash == std::string::npos)
            continue;
        ++nPages;
        std::string sFile = sPath.substr(0, nSlash) + ".md";
        std::ranges::transform(sFile, sFile.begin(),
                               [](char c) { return c == ' ' ? '-' : gToLowerAscii(c); });
        const std::string sDocument = TextOf(kDocuments / sFile);
        EXPECT_NE(sDocument.find("\n## " + sPath.substr(nSlash + 1) + '\n'), std::string::npos)
            << sPath;
    }
    EXPECT_GT(nPages, 0);
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
