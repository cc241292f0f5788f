#include "house/SourceTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <string>
#include <vector>

namespace quorvawiz::house
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Put together here, so that this file doesn't hold them.
const std::array<std::string, 4> kLooseEnds{std::string("TO") + "DO", std::string("FIX") + "ME",
                                            std::string("XX") + "X", std::string("HA") + "CK"};

bool gIsWordByte(const std::string& rText, std::size_t nIndex)
{
    return nIndex < rText.size() &&
           (std::isalnum(static_cast<unsigned char>(rText[nIndex])) != 0 || rText[nIndex] == '_');
}

bool gHoldsWord(const std::string& rText, const std::string& rWord)
{
    for (std::size_t at = rText.find(rWord); at != std::string::npos;
         at = rText.find(rWord, at + 1)) {
        const bool startsInside = at > 0 && gIsWordByte(rText, at - 1);
        if (!startsInside && !gIsWordByte(rText, at + rWord.size()))
            return true;
    }
    return false;
}

// "path:line: word" for each loose end.
std::vector<std::string> gFindLooseEnds(const TSourceFile& rFile)
{
    std::vector<std::string> found;
    const auto lines = gSplitLines(rFile.msText);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        for (const auto& word : kLooseEnds) {
            if (gHoldsWord(lines[i], word))
                found.push_back(rFile.msPath + ":" + std::to_string(i + 1) + ": " + word);
        }
    }
    return found;
}

bool gStartsGuarded(const std::string& rText)
{
    return rText.starts_with("#pragma once\n");
}

TEST(Words, NoLooseEnds)
{
    auto files = gReadFolders(
        {"src", "apps", "tests", "bench", "examples", "docs", "scripts", "cmake", ".ci", "fuzz"});
    // Seeds and pictures are bytes of any kind.
    std::erase_if(files, [](const TSourceFile& rFile) {
        return rFile.msPath.starts_with("fuzz/corpus/") || rFile.msPath.ends_with(".png");
    });
    const auto rootFiles = gReadRootFiles();
    ASSERT_FALSE(files.empty());
    ASSERT_TRUE(gPathsOf(rootFiles).contains("README.md"));
    files.insert(files.end(), rootFiles.begin(), rootFiles.end());
    for (const auto& file : files)
        EXPECT_THAT(gFindLooseEnds(file), IsEmpty());
}

TEST(Words, HeadersStartGuarded)
{
    const auto files = gReadFolders({"src", "apps", "tests"});
    ASSERT_FALSE(files.empty());
    for (const auto& file : files) {
        if (gIsHeader(file.msPath)) {
            EXPECT_TRUE(gStartsGuarded(file.msText)) << file.msPath;
        }
    }
}

TEST(WordsProof, EachLooseEndIsFound)
{
    for (const auto& word : kLooseEnds) {
        EXPECT_THAT(gFindLooseEnds({"a.h", "int a;\n// " + word + ": later\n"}),
                    ElementsAre("a.h:2: " + word));
        EXPECT_THAT(gFindLooseEnds({"a.h", word}), ElementsAre("a.h:1: " + word));
    }
}

TEST(WordsProof, PartsOfWordsAreNoLooseEnds)
{
    for (const auto& word : kLooseEnds) {
        EXPECT_THAT(gFindLooseEnds({"a.h", "my" + word + " " + word + "S _" + word}), IsEmpty());
        EXPECT_THAT(gFindLooseEnds({"a.h", "my" + word + " " + word}),
                    ElementsAre("a.h:1: " + word));
    }
}

TEST(WordsProof, AnUnguardedHeaderIsFound)
{
    EXPECT_TRUE(gStartsGuarded("#pragma once\n\nint a;\n"));
    EXPECT_FALSE(gStartsGuarded("int a;\n#pragma once\n"));
    EXPECT_FALSE(gStartsGuarded(""));
}

} // namespace
} // namespace quorvawiz::house
