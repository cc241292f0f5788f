#include "foundation/PathScopes.h"
#include "foundation/Paths.h"

#include <gtest/gtest.h>

namespace
{

TEST(PathParts, NameAndFolder)
{
    struct Case {
        const char* pPath;
        const char* pName;
        const char* pFolder;
    };
    constexpr Case cases[] = {
        {"", "", ""},
        {"x", "x", ""},
        {"C:x", "x", "C:"},
        {"C:\\x", "x", "C:\\"},
        {"C:/x", "x", "C:/"},
        {"\\x", "x", ""},
        {"/x", "x", ""},
        {"a\\b\\c", "c", "a\\b"},
        {"a/b\\c", "c", "a/b"},
        {"a\\", "", "a"},
        {"a:", "", "a:"},
        {"C:\\", "", "C:\\"},
        {"\\\\s\\h", "h", "\\\\s"},
        {"a:b\\c:d", "d", "a:b\\c:"},
        {":", "", ":"},
        {":\\x", "x", ":\\"},
        {"\xC3\xA9\\a", "a", "\xC3\xA9"},
        {"a\\\xC3\xA9", "\xC3\xA9", "a"},
        {"a\xC3\xA9\\b\xC3\xA9", "b\xC3\xA9", "a\xC3\xA9"},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gGetFileNameWithoutPath(rCase.pPath), CStringU(rCase.pName)) << rCase.pPath;
        EXPECT_EQ(gGetPathWithoutFileName(rCase.pPath), CStringU(rCase.pFolder)) << rCase.pPath;
    }
}

TEST(PathParts, Extensions)
{
    struct Case {
        const char* pPath;
        bool bHas;
        const char* pExtension;
        const char* pSet;    // with "d"
        const char* pEnsure; // with "D"
        const char* pTitle;
        const char* pWithout;
    };
    constexpr Case cases[] = {
        {"", false, "", ".d", ".D", "", ""},
        {"a", false, "", "a.d", "a.D", "a", "a"},
        {"a.", true, "", "a.d", "a..D", "a", "a"},
        {"a.txt", true, "txt", "a.d", "a.txt.D", "a", "a"},
        {"a.d", true, "d", "a.d", "a.d", "a", "a"},
        {"a.b.c", true, "c", "a.b.d", "a.b.c.D", "a.b", "a.b"},
        {"a.b\\c", false, "", "a.b\\c.d", "a.b\\c.D", "c", "a.b\\c"},
        {"a.b/c", false, "", "a.b/c.d", "a.b/c.D", "c", "a.b\\c"},
        {"a.b:c", false, "", "a.b:c.d", "a.b:c.D", "c", "a.b:c"},
        {".", true, "", ".d", "..D", "", ""},
        {".x", true, "x", ".d", ".x.D", "", ""},
        {"..", true, "", "..d", "...D", ".", ""},
        {"a\\", false, "", "a\\.d", "a\\.D", "", "a"},
        {"C:\\a.b", true, "b", "C:\\a.d", "C:\\a.b.D", "a", "C:\\a"},
        {"\\a.b", true, "b", "\\a.d", "\\a.b.D", "a", "a"}, // the lone slash is no folder
        {"\xC3\xA9.\xC3\xBC", true, "\xC3\xBC", "\xC3\xA9.d", "\xC3\xA9.\xC3\xBC.D", "\xC3\xA9",
         "\xC3\xA9"},
        {"a.\xC3\xBC", true, "\xC3\xBC", "a.d", "a.\xC3\xBC.D", "a", "a"},
    };
    const CEnvironmentScope environment({});
    for (const Case& rCase : cases) {
        const CStringU path(rCase.pPath);
        EXPECT_EQ(gHasExtension(path), rCase.bHas) << rCase.pPath;
        EXPECT_EQ(gGetExtension(path), CStringU(rCase.pExtension)) << rCase.pPath;
        EXPECT_EQ(gSetExtension(path, "d"), CStringU(rCase.pSet)) << rCase.pPath;
        EXPECT_EQ(gEnsureExtension(path, "D"), CStringU(rCase.pEnsure)) << rCase.pPath;
        EXPECT_EQ(gGetFileTitle(path), CStringU(rCase.pTitle)) << rCase.pPath;
        EXPECT_EQ(gGetPathWithoutExtension(path), CStringU(rCase.pWithout)) << rCase.pPath;
    }
}

TEST(PathParts, MoreExtensions)
{
    EXPECT_EQ(gEnsureExtension("a.txt", "dat"), "a.txt.dat");
    EXPECT_EQ(gEnsureExtension("a.TXT", "txt"), "a.TXT");
    EXPECT_EQ(gEnsureExtension(u"a.\u00C9", u"\u00E9"), CStringU(u"a.\u00C9"));
    EXPECT_EQ(gEnsureExtension("a", ""), "a"); // it has the empty one
    EXPECT_EQ(gSetExtension("a.b", ""), "a.");
    EXPECT_EQ(gSetExtension("a.b", u"\u00E9").Stored(), CStringU(u"a.\u00E9").Stored());
}

TEST(PathParts, MalformedTextComesOutWellFormed)
{
    const CStringU cut("\xC3", TTextKind::Plain); // a character without its second byte
    for (const CStringU& rMade :
         {gSetExtension(cut, "x"), gEnsureExtension(cut, "x"), gSetExtension("a", cut),
          gEnsureExtension("a", cut), gGetFileNameWithoutPath(cut + "\\" + cut),
          gGetExtension("a." + cut), gGetFileTitle(cut + ".x")}) {
        EXPECT_EQ(rMade.Stored(), CStringU(rMade.ToWide()).Stored());
    }
    EXPECT_EQ(gEnsureExtension(cut, "x").Stored(), gSetExtension(cut, "x").Stored());
}

TEST(PathsEqual, SeparatorsAndCase)
{
    struct Case {
        const char16_t* pLeft;
        const char16_t* pRight;
        bool bPlain;
        bool bWine;
    };
    constexpr Case cases[] = {
        {u"", u"", true, true},
        {u"a/b", u"a\\b", true, true},
        {u"A/B", u"a\\b", true, false},
        {u"a", u"a/", false, false},
        {u"\u00E9/a", u"\u00E9\\a", true, true},
        {u"\u00C9", u"\u00E9", true, false},
        {u"a\\b", u"a\\c", false, false},
        {u"/", u"\\", true, true},
    };
    for (const bool bIsWine : {false, true}) {
        const CIsWineScope scope(bIsWine);
        for (const Case& rCase : cases) {
            EXPECT_EQ(gPathsEqual(rCase.pLeft, rCase.pRight), bIsWine ? rCase.bWine : rCase.bPlain)
                << CStringU(rCase.pLeft).Text();
        }
    }
}

} // namespace
