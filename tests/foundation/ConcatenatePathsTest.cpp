#include "foundation/PathScopes.h"
#include "foundation/Paths.h"

#include <gtest/gtest.h>

namespace
{

TEST(ConcatenatePaths, UnderThePlainRules)
{
    struct Case {
        const char* pPath;
        const char* pRelative;
        const char* pJoined;
    };
    constexpr Case cases[] = {
        {"C:\\a", "\\b", "C:\\b"},
        {"\\\\s\\h\\x", "\\b", "\\\\s\\h\\b"},
        {"\\\\s\\h\\x\\y", "\\b", "\\\\s\\h\\b"},
        {"\\\\s\\h", "\\b", "\\\\s\\h\\b"},
        {"\\\\s", "\\b\\c", "\\\\s\\b\\c"},
        {"a\\", "b", "a\\b"},
        {"a", "b", "a\\b"},
        {"a", "", "a"},
        {"a\\..\\c\\", "", "c"},
        {"C:\\a", "D:\\b", "D:\\b"},
        {"C:\\a", "/b", "\\b"}, // absolute under every system
        {"C:", "b", "C:b"},
        {"C:", "\\b", "C:\\b"},
        {"C:x", "\\b", "C:\\b"},
        {"a", "\\b", "a\\b"},
        {"a\\", "\\b", "a\\b"},
        {"a:", "b", "a:b"},
        {"ab:", "c", "ab:c"},
        {"", "b\\..\\c", "c"},
        {"", "", ""},
        {"", "\\b", "\\b"},
        {"a\\b", "..\\..\\..\\c", "..\\c"},
        {"C:\\a", "..\\..\\c", "C:\\c"},
        {"\\", "b", "\\b"},
        {"/", "b", "\\b"},
        {"\\", "\\b", "\\b"},
        {"a", "D:b", "a\\D:b"},
        {"C:\\a", "\\\\s\\h\\b", "\\\\s\\h\\b"},
        {"C:\\a", "$X", "C:\\a\\x"},
        {"C:\\a", "$HOME", "/home"},
        {"$HOME", "b", "/home\\b"},
        {"a", "\xC3\xA9", "a\\\xC3\xA9"},
        {"\xC3\xA9\\", "b", "\xC3\xA9\\b"},
    };
    const CEnvironmentScope environment({{"X", "x"}, {"HOME", "/home"}});
    for (const Case& rCase : cases) {
        EXPECT_EQ(gConcatenatePaths(rCase.pPath, rCase.pRelative), CStringU(rCase.pJoined))
            << rCase.pPath << " + " << rCase.pRelative;
    }
}

TEST(ConcatenatePaths, OnTheUnixSide)
{
    const CEnvironmentScope environment({});
    const CIsWineScope scope(true);
    EXPECT_EQ(gConcatenatePaths("/a", "b"), "/a/b");
    EXPECT_EQ(gConcatenatePaths("/a", "\\b"), "/a/b");
    EXPECT_EQ(gConcatenatePaths("/a", "/b"), "/b");
    EXPECT_EQ(gConcatenatePaths("/a/b/", "../c"), "/a/c");
    EXPECT_EQ(gConcatenatePaths("C:\\a", "b"), "C:\\a\\b");
}

TEST(ResolvePath, AnAbsolutePathStandsAlone)
{
    const CEnvironmentScope environment({});
    EXPECT_EQ(gResolvePath("C:\\a", "D:\\x\\..\\b"), "D:\\b");
    EXPECT_EQ(gResolvePath("C:\\a", "b"), "C:\\a\\b");
    EXPECT_EQ(gResolvePath("C:\\a", "\\b"), "C:\\b");
    EXPECT_EQ(gResolvePath("", "b"), "b");
    EXPECT_EQ(gResolvePath("C:\\a", ""), "C:\\a");
}

TEST(ResolvePath, OnTheUnixSide)
{
    const CEnvironmentScope environment(CMapEnvironment::TVariables{{"HOME", "/home"}});
    const CIsWineScope scope(true);
    EXPECT_EQ(gResolvePath("/a", "/x/../b"), "/b");
    EXPECT_EQ(gResolvePath("/a/b", "..\\c"), "/a/c");
    EXPECT_EQ(gResolvePath("/a", "C:/x/../b"), "C:\\b");
    EXPECT_EQ(gResolvePath("/a", "\\\\s/h/x"), "\\\\s\\h\\x");
    EXPECT_EQ(gResolvePath("C:\\a", "b/c"), "C:\\a\\b\\c");
    EXPECT_EQ(gResolvePath("/a", "\\b"), "/a/b"); // joined: the folder's root is the folder
    EXPECT_EQ(gResolvePath("/a", "$HOME/b"), "/home/b");
    EXPECT_EQ(gResolvePath("a\\b", ""), "a/b");
    EXPECT_EQ(gResolvePath("", "b\\c"), "b/c");
}

} // namespace
