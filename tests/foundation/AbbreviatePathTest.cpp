#include "foundation/Paths.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

TEST(AbbreviatePath, AtEveryWidth)
{
    struct Case {
        const char16_t* pPath;
        int nWidth;
        const char16_t* pShort;
    };
    constexpr Case cases[] = {
        {u"C:\\aa\\bb\\cc\\d.txt", 17, u"C:\\aa\\bb\\cc\\d.txt"},
        {u"C:\\aa\\bb\\cc\\d.txt", 16, u"C:\\...\\cc\\d.txt"},
        {u"C:\\aa\\bb\\cc\\d.txt", 15, u"C:\\...\\cc\\d.txt"},
        {u"C:\\aa\\bb\\cc\\d.txt", 14, u"C:\\...\\d.txt"},
        {u"C:\\aa\\bb\\cc\\d.txt", 12, u"C:\\...\\d.txt"},
        {u"C:\\aa\\bb\\cc\\d.txt", 11, u"d.txt"},
        {u"C:\\aa\\bb\\cc\\d.txt", 1, u"d.txt"},
        {u"C:\\aa\\bb\\cc\\d.txt", 0, u"d.txt"},
        {u"C:\\aa\\bb\\cc\\d.txt", -1, u"d.txt"},
        {u"\\\\srv\\share\\aaaa\\bbbb\\c", 23, u"\\\\srv\\share\\aaaa\\bbbb\\c"},
        {u"\\\\srv\\share\\aaaa\\bbbb\\c", 22, u"\\\\srv\\share\\...\\bbbb\\c"},
        {u"\\\\srv\\share\\aaaa\\bbbb\\c", 21, u"\\\\srv\\share\\...\\c"},
        {u"\\\\srv\\share\\aaaa\\bbbb\\c", 17, u"\\\\srv\\share\\...\\c"},
        {u"\\\\srv\\share\\aaaa\\bbbb\\c", 16, u"c"},
        {u"/home/user/project/a.cir", 23, u"/.../user/project/a.cir"},
        {u"/home/user/project/a.cir", 22, u"/.../project/a.cir"},
        {u"/home/user/project/a.cir", 10, u"/.../a.cir"},
        {u"/home/user/project/a.cir", 9, u"a.cir"},
        {u"aaaa\\bbbb\\cccc\\d", 15, u"\\...\\cccc\\d"},
        {u"aaaa\\bbbb\\cccc\\d", 6, u"\\...\\d"},
        {u"C:/aaaa/bbbb/c", 9, u"C:\\.../c"}, // the components' own separators stay
        {u"longname.txt", 11, u"longname.txt"},
        {u"", 0, u""},
        {u"aaaaaaaa:x", 9, u"\\...\\x"},
        {u"C:\\aaaaaaaa\\bbbb\\", 8, u"C:\\...\\"},
        {u"C:\\aaaa\\\u00E9\u00E9\\\u4E2D", 10, u"C:\\...\\\u4E2D"},
        {u"C:\\aaaaa\\\u00E9\u00E9\\\u4E2D", 11, u"C:\\...\\\u00E9\u00E9\\\u4E2D"},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gAbbreviatePath(rCase.pPath, rCase.nWidth, true), CStringU(rCase.pShort))
            << CStringU(rCase.pPath).Text() << " in " << rCase.nWidth;
    }
}

TEST(AbbreviatePath, WithoutTheNameNothingIsLeft)
{
    EXPECT_EQ(gAbbreviatePath("C:\\aa\\bb\\d.txt", 11, false), "");
    EXPECT_EQ(gAbbreviatePath("C:\\aa\\bb\\d.txt", 12, false), "C:\\...\\d.txt");
    EXPECT_EQ(gAbbreviatePath("longname.txt", 11, false), "");
    EXPECT_EQ(gAbbreviatePath("longname.txt", std::numeric_limits<int>::min(), false), "");
    EXPECT_EQ(gAbbreviatePath("longname.txt", std::numeric_limits<int>::max(), false),
              "longname.txt");
}

TEST(AbbreviatePath, AMillionComponents)
{
    constexpr int count = 1'000'000;
    std::u16string sPath = u"C:";
    for (int n = 0; n < count; ++n) {
        sPath += u"\\a";
    }
    const int nWidth = 2 * count + 1;
    EXPECT_EQ(gAbbreviatePath(sPath, nWidth, true).GetCharCount(), nWidth - 1);
    EXPECT_EQ(gAbbreviatePath(sPath, 8, true), "C:\\...\\a");
}

} // namespace
