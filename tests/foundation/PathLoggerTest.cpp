#include "foundation/CountAllocations.h"
#include "foundation/PathLog.h"
#include "foundation/PathScopes.h"
#include "foundation/Paths.h"
#include "platform/base/CodePageScope.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

namespace
{

/// The lines that a call leaves, as UTF-8.
class PathLogger : public ::testing::Test
{
protected:
    PathLogger()
    {
        gSetPathLogger([this](const CStringU& rLine) { mLines.push_back(rLine); });
    }

    std::string TakeOnlyLine()
    {
        if (mLines.size() != 1) {
            return std::to_string(mLines.size()) + " lines";
        }
        const std::string sLine(mLines.front().Text());
        mLines.clear();
        return sLine;
    }

    CPathStateScope mState;
    CEnvironmentScope mEnvironment{{{"X", "/x"}}};
    std::vector<CStringU> mLines;
};

TEST_F(PathLogger, EachFunctionHasItsFormat)
{
    std::ignore = gIsAbsolutePath("C:\\a");
    EXPECT_EQ(TakeOnlyLine(), "gIsAbsolutePath(Path=C:\\a) returns true");
    std::ignore = gIsAbsolutePath("a");
    EXPECT_EQ(TakeOnlyLine(), "gIsAbsolutePath(Path=a) returns false");
    std::ignore = gGetFileNameWithoutPath("a\\b");
    EXPECT_EQ(TakeOnlyLine(), "gGetFileNameWithoutPath(FullPath=a\\b) returns b");
    std::ignore = gGetPathWithoutFileName("a\\b");
    EXPECT_EQ(TakeOnlyLine(), "gGetPathWithoutFileName(FullPath=a\\b) returns a");
    std::ignore = gCanonicalizePath("a/$X/b");
    EXPECT_EQ(TakeOnlyLine(), "gCanonicalizePath(Path=a/$X/b) returns /x\\b");
    std::ignore = gConcatenatePaths("a", "b");
    EXPECT_EQ(TakeOnlyLine(), "gConcatenatePaths(Path=a, RelativePath=b) returns a\\b");
    std::ignore = gGetRelativeFileName("C:\\a", "C:\\b");
    EXPECT_EQ(TakeOnlyLine(), "gGetRelativeFileName(Path=C:\\a, FileName=C:\\b) returns ..\\b");
}

TEST_F(PathLogger, AnEmptyArgumentIsNothing)
{
    std::ignore = gConcatenatePaths("", "");
    EXPECT_EQ(TakeOnlyLine(), "gConcatenatePaths(Path=, RelativePath=) returns ");
}

TEST_F(PathLogger, ArgumentsGoOutWithoutTheirMarker)
{
    std::ignore = gGetFileNameWithoutPath(u"a\\b\u00E9");
    ASSERT_EQ(mLines.size(), 1U);
    EXPECT_EQ(mLines.front().Stored(),
              CStringU(u"gGetFileNameWithoutPath(FullPath=a\\b\u00E9) returns b\u00E9").Stored());
}

TEST_F(PathLogger, TheOthersAndInnerCallsAreSilent)
{
    CStringU errors;
    std::ignore = gResolvePath("a", "b");
    std::ignore = gGetFileTitle("a\\b.c");
    std::ignore = gGetPathWithoutExtension("a\\b.c");
    std::ignore = gGetExtension("a");
    std::ignore = gHasExtension("a");
    std::ignore = gSetExtension("a", "b");
    std::ignore = gEnsureExtension("a", "b");
    std::ignore = gIsUnixStylePath("/a");
    std::ignore = gAbbreviatePath("a\\b", 1, true);
    std::ignore = gPathsEqual("a", "b");
    std::ignore = gGetExecutableFolder();
    std::ignore = gGetModuleFolder();
    std::ignore = gGetCurrentDirectory(true);
    std::ignore = gToDosPath("C:/a");
    std::ignore = gToUnixPath("C:/a");
    std::ignore = gFileExists("/");
    std::ignore = gDirectoryExists("/");
    std::ignore = gCreateDirectories("/", errors);
    EXPECT_TRUE(mLines.empty());
}

TEST_F(PathLogger, CanBeSetClearedAndAsked)
{
    EXPECT_TRUE(gIsPathLoggerSet());
    gClearPathLogger();
    EXPECT_FALSE(gIsPathLoggerSet());
    EXPECT_EQ(gCanonicalizePath("a/b"), "a\\b");
    EXPECT_TRUE(mLines.empty());
    gSetPathLogger(TPathLogger());
    EXPECT_FALSE(gIsPathLoggerSet());
}

TEST_F(PathLogger, WithoutOneNothingIsFormatted)
{
    const CStringU sLong(std::string(1000, 'a'));
    gClearPathLogger();
    const std::size_t nBefore = gCountAllocations();
    gLogPathCall("gSome", {{"Path", sLong}}, sLong);
    EXPECT_EQ(gCountAllocations(), nBefore);
}

TEST_F(PathLogger, LinesAreUtf8WhateverTheCodePage)
{
    const CCodePageScope scope(kCodePageWindows1252);
    std::ignore = gIsAbsolutePath(u"a\u20ac\u0439");
    ASSERT_EQ(mLines.size(), 1U);
    EXPECT_EQ(mLines.front().ToWide(), u"gIsAbsolutePath(Path=a\u20ac\u0439) returns false");
}

TEST_F(PathLogger, ThatThrowsHasNoInfluence)
{
    gSetPathLogger([this](const CStringU& rLine) {
        mLines.push_back(rLine);
        throw std::runtime_error("the log is full");
    });
    EXPECT_EQ(gCanonicalizePath("a/b"), "a\\b");
    EXPECT_EQ(TakeOnlyLine(), "gCanonicalizePath(Path=a/b) returns a\\b");
    EXPECT_TRUE(gIsAbsolutePath("/a"));
    EXPECT_TRUE(gIsPathLoggerSet());
    gSetPathLogger([](const CStringU&) { throw 1; });
    EXPECT_EQ(gConcatenatePaths("a", "b"), "a\\b");
}

TEST_F(PathLogger, MayTakeItselfAway)
{
    gSetPathLogger([this](const CStringU& rLine) {
        gClearPathLogger();
        mLines.push_back(rLine);
    });
    EXPECT_EQ(gCanonicalizePath("a/b"), "a\\b");
    EXPECT_EQ(TakeOnlyLine(), "gCanonicalizePath(Path=a/b) returns a\\b");
    EXPECT_FALSE(gIsPathLoggerSet());
}

} // namespace
