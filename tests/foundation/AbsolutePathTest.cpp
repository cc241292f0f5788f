#include "foundation/PathScopes.h"
#include "foundation/Paths.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

TEST(IsAbsolutePath, UnderBothRules)
{
    struct Case {
        const char* pPath;
        bool bAbsolute;
    };
    constexpr Case cases[] = {
        {"", false},
        {"a", false},
        {"/a", true},
        {"\\a", false},
        {"/", true},
        {"\\", false},
        {"C:\\x", true},
        {"C:/x", true},
        {"C:x", false},
        {"C:", false},
        {"C:\\", true},
        {"\\\\server\\share\\x", true},
        {"\\\\server\\share", false},
        {"//server/share", true},
        {"//server/share/x", true},
        {"\\/server/share/x", true},
        {"..", false},
        {"./a", false},
        {"a/../C:/x", true},
        {"./C:\\x", true},
        {"CC:\\x", false},
        {"\\..\\C:\\x", false},
        {"$HOME", true},
        {"$DRIVE\\x", true},
        {"x\\$HOME", true},
        {"\\$HOME", false},
        {"$NOSUCH", false},
        {"$REL", false},
        {"%HOME%", true},
    };
    const CEnvironmentScope environment({{"HOME", "/home"}, {"DRIVE", "D:\\"}, {"REL", "a"}});
    for (const bool bIsWine : {false, true}) {
        const CIsWineScope scope(bIsWine);
        for (const Case& rCase : cases) {
            EXPECT_EQ(gIsAbsolutePath(rCase.pPath), rCase.bAbsolute) << rCase.pPath << bIsWine;
        }
    }
}

TEST(IsUnixStylePath, ByItsBeginningAndQuotes)
{
    struct Case {
        const char* pPath;
        bool bUnixStyle;
    };
    constexpr Case cases[] = {
        {"", false},        {"/", true},          {"/a", true},       {"../a", true},
        {"./a", true},      {"..", false},        {".", false},       {"..\\a", false},
        {".a/", false},     {"a/b", false},       {"\\a", false},     {"\"/a\"", true},
        {"'/a'", true},     {"\"/\"", true},      {"\"\"", false},    {"''", false},
        {"\"", false},      {"\"/a'", false},     {"\"/a", false},    {"\"a\"", false},
        {"\"'/a'\"", true}, {"'\"../b\"'", true}, {"\"\"/\"", false}, {"'./'", true},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gIsUnixStylePath(rCase.pPath), rCase.bUnixStyle) << rCase.pPath;
    }
}

TEST(IsUnixStylePath, AsManyQuotesAsThereAre)
{
    const std::string quotes(500'000, '"');
    EXPECT_TRUE(gIsUnixStylePath(quotes + "/a" + quotes));
    EXPECT_FALSE(gIsUnixStylePath(quotes + "a" + quotes));
    EXPECT_FALSE(gIsUnixStylePath(quotes));
}

} // namespace
