#include "foundation/PathScopes.h"
#include "foundation/Paths.h"

#include <gtest/gtest.h>

namespace
{

struct Case {
    const char16_t* pPath;
    const char16_t* pPlain;
    const char16_t* pWine;
};

TEST(CanonicalizePath, UnderBothRules)
{
    constexpr Case cases[] = {
        {u"", u"", u""},
        {u".", u"", u""},
        {u"a", u"a", u"a"},
        {u"a/", u"a", u"a"},
        {u"./a/./b/.", u"a\\b", u"a/b"},
        {u"a//b\\\\c", u"a\\b\\c", u"a/b/c"},
        {u"C:\\a\\.\\b\\..\\c\\", u"C:\\a\\c", u"C:\\a\\c"},
        {u"..\\..\\x", u"..\\..\\x", u"../../x"},
        {u"\\a\\..\\..\\b", u"\\b", u"/b"},
        {u"C:a\\..\\..\\b", u"C:..\\b", u"C:../b"},
        {u"//srv/share/a/../b", u"\\\\srv\\share\\b", u"\\\\srv\\share\\b"},
        {u"C:\\", u"C:\\", u"C:\\"},
        {u"C:", u"C:", u"C:"},
        {u"C:/..", u"C:\\", u"C:\\"},
        {u"C:..", u"C:..", u"C:.."},
        {u"a/b/../../..", u"..", u".."},
        {u"a/..", u"", u""},
        {u"a/../b", u"b", u"b"},
        {u"../a/../..", u"..\\..", u"../.."},
        {u"../../a/..", u"..\\..", u"../.."},
        {u"a/../../b/../c", u"..\\c", u"../c"},
        {u"...", u"...", u"..."},
        {u"a/.../..", u"a", u"a"},
        {u"/a/b", u"\\a\\b", u"/a/b"},
        {u"/", u"\\", u"/"},
        {u"/..", u"\\", u"/"},
        {u"/../a", u"\\a", u"/a"},
        {u"//", u"\\", u"/"},
        {u"//srv", u"\\srv", u"/srv"},
        // Meant: a share with nothing behind it is no root.
        {u"//server/share", u"\\server\\share", u"/server/share"},
        {u"\\\\server\\share\\", u"\\\\server\\share\\", u"\\\\server\\share\\"},
        {u"//srv/share/..", u"\\\\srv\\share\\", u"\\\\srv\\share\\"},
        {u"//srv/share/../../b", u"\\\\srv\\share\\b", u"\\\\srv\\share\\b"},
        {u"//srv/../a/b", u"\\\\srv\\..\\a\\b", u"\\\\srv\\..\\a\\b"},
        {u"///a", u"\\a", u"/a"},
        {u"////a", u"\\\\\\\\a", u"\\\\\\\\a"},
        {u"\\\\?\\C:\\a\\..\\b", u"\\\\?\\C:\\b", u"\\\\?\\C:\\b"},
        {u"\\\\?\\a\\..\\b", u"\\\\?\\a\\b", u"\\\\?\\a\\b"},
        {u"a:b:c", u"a:b:c", u"a:b:c"},
        {u"ab:/c", u"ab:\\c", u"ab:/c"},
        {u"\u00E9:/x", u"\u00E9:\\x", u"\u00E9:\\x"},
        {u"a\u00E9/\u4E2D/../\U0001F600b", u"a\u00E9\\\U0001F600b", u"a\u00E9/\U0001F600b"},
        {u"Case/Stays", u"Case\\Stays", u"Case/Stays"},
        {u" a / b ", u" a \\ b ", u" a / b "},
    };
    const CEnvironmentScope environment({});
    for (const bool bIsWine : {false, true}) {
        const CIsWineScope scope(bIsWine);
        for (const Case& rCase : cases) {
            const CStringU expected(bIsWine ? rCase.pWine : rCase.pPlain);
            EXPECT_EQ(gCanonicalizePath(rCase.pPath).Stored(), expected.Stored())
                << CStringU(rCase.pPath).Text() << (bIsWine ? " on the Unix side" : "");
        }
    }
}

TEST(CanonicalizePath, MalformedBytesGiveSomeText)
{
    const CEnvironmentScope environment({});
    // A lead byte takes the slash behind it for its trail; a separator in two bytes is one.
    EXPECT_EQ(gCanonicalizePath(CStringU("\xC3", TTextKind::Plain)).GetCharCount(), 1);
    EXPECT_EQ(gCanonicalizePath(CStringU("a\xC0\xAF"
                                         "b",
                                         TTextKind::Utf8)),
              "a\\b");
}

TEST(CanonicalizePath, LongPaths)
{
    const CEnvironmentScope environment({});
    std::u16string sDown;
    std::u16string sUp;
    for (int n = 0; n < 100'000; ++n) {
        sDown += u"a/";
        sUp += u"../";
    }
    EXPECT_EQ(gCanonicalizePath(sDown + sUp), "");
    EXPECT_EQ(gCanonicalizePath(u"C:/" + sDown + sUp + u"b"), "C:\\b");
    EXPECT_EQ(gCanonicalizePath(sUp).GetByteLength(), 299'999);
}

} // namespace
