#include "foundation/RandomText.h"
#include "foundation/StringModel.h"
#include "foundation/StringU.h"
#include "support/PrintStringU.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace
{

using namespace std::string_view_literals;

const CStringU& Sample()
{
    static const CStringU sSample(
        u"a\u00e9b\u00e9A\u00c9"); // bytes: a 0, e 1, b 3, e 4, A 6, E 7, end 9
    return sSample;
}

TEST(StringUSearchTest, FindsCharacters)
{
    struct Case {
        char16_t chChar;
        int nFind;
        int nFindNoCase;
    };
    const Case cases[] = {
        {u'a', 0, 0}, {u'b', 3, 3}, {u'A', 6, 0}, {u'B', 9, 3},   {0xE9, 1, 1},
        {0xC9, 7, 1}, {u'z', 9, 9}, {0, 9, 9},    {0x20AC, 9, 9},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(Sample().Find(rCase.chChar).GetIndex(), rCase.nFind)
            << static_cast<int>(rCase.chChar);
        EXPECT_EQ(Sample().FindNoCase(rCase.chChar).GetIndex(), rCase.nFindNoCase)
            << static_cast<int>(rCase.chChar);
    }
    EXPECT_EQ(*Sample().Find(u'\u00c9'), u'\u00c9');
    EXPECT_EQ(Sample().Find(u'z'), Sample().end());
}

TEST(StringUSearchTest, FindsCharactersInOddTexts)
{
    const CStringU sPlain("a\xE9\0b"sv, TTextKind::Plain);
    EXPECT_EQ(sPlain.Find(u'\u00e9').GetIndex(), 1); // the byte as it widens
    EXPECT_EQ(sPlain.Find(u'\0').GetIndex(), 2);
    EXPECT_EQ(sPlain.Find(u'\u01e9').GetIndex(), 4);
    EXPECT_EQ(CStringU("\xF8", TTextKind::Plain).Find(u'?').GetIndex(), 0);
    EXPECT_EQ(CStringU("\xC1\x81", TTextKind::Plain).Find(u'A').GetIndex(), 0);
    EXPECT_TRUE(CStringU().Find(u'a').IsEnd());
}

TEST(StringUSearchTest, AByteIsTheUnitOfItsNumber)
{
    const CStringU sText(u"ab\u00e9\u00c9");
    EXPECT_EQ(CStringU('\xE9').Stored(), "\xC3\xA9");
    EXPECT_EQ(CStringU('a').Stored(), "a");
    EXPECT_EQ(sText.Find('\xE9').GetIndex(), 2);
    EXPECT_EQ(sText.Find('b').GetIndex(), 1);
    EXPECT_EQ(sText.FindNoCase('\xC9').GetIndex(), 2);
    CStringU sChanged = sText;
    EXPECT_EQ(sChanged.Replace('\xE9', 'x'), 1);
    EXPECT_EQ(sChanged.Replace('a', u'\u20ac'), 1);
    EXPECT_EQ(sChanged.ReplaceNoCase('\xE9', '\xE8'), 1);
    EXPECT_EQ(sChanged, u"\u20acbx\u00e8");
}

TEST(StringUSearchTest, ReplacingKeepsZerosInside)
{
    struct Case {
        std::string_view sText;
        std::string_view sStored;
        int nCount;
    };
    const Case cases[] = {
        {"a\0b\0b"sv, "\x80\x61\0\xC3\xA9\0\xC3\xA9"sv, 2},
        {"b\0"sv, "\xC3\xA9\0"sv, 1},
        {"\0b"sv, "\x80\0\xC3\xA9"sv, 1},
        {"a\0c"sv, "a\0c"sv, 0},
    };
    for (const Case& rCase : cases) {
        CStringU sText(rCase.sText, TTextKind::Plain);
        EXPECT_EQ(sText.Replace(u'b', u'\u00e9'), rCase.nCount);
        EXPECT_EQ(sText.Stored(), rCase.sStored);
    }
}

TEST(StringUSearchTest, ASetAsLongAsTheTextTakesNoTimeByTheSquare)
{
    // By the square these would be 10 to the 11th steps.
    const std::string sMuch(300'000, 'a');
    const CStringU sText(sMuch + "\xC3\xA9");
    const CStringU sSet(std::string(300'000, 'b'));
    EXPECT_TRUE(sText.FindOneOf(sSet).IsEnd());
    EXPECT_TRUE(sText.FindLastOf(sSet).IsEnd());
    EXPECT_EQ(sText.FindOneOf(sSet + u"\u00e9").GetIndex(), 300'000);
}

TEST(StringUSearchTest, FindsTexts)
{
    struct Case {
        std::string_view sName;
        CStringU sNeedle;
        int nFirst;
        int nLast;
    };
    const Case cases[] = {
        {"once", "b", 3, 3},
        {"twice", u"\u00e9", 1, 4},
        {"a marked needle without its marker", u"b\u00e9", 3, 3},
        {"absent", "ab", -1, -1},
        {"all of it", Sample(), 0, 0},
        {"longer than the text", Sample() + "x", -1, -1},
        {"the empty one: at the beginning and at the end", "", 0, 9},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(Sample().Find(rCase.sNeedle), rCase.nFirst) << rCase.sName;
        EXPECT_EQ(Sample().ReverseFind(rCase.sNeedle), rCase.nLast) << rCase.sName;
    }
    EXPECT_EQ(Sample().Find(u"\u00e9b"), 1);
    EXPECT_EQ(Sample().Find("\xC3\xA9"), 1);
}

TEST(StringUSearchTest, FindsOneOfASet)
{
    struct Case {
        std::string_view sName;
        CStringU sSet;
        int nFirst;
        int nLast;
    };
    const Case cases[] = {
        {"ASCII", "bA", 3, 6}, {"mixed", u"x\u00e9", 1, 4}, {"absent", "xyz", 9, 9},
        {"empty", "", 9, 9},   {"first", "a", 0, 0},        {"last", u"\u00c9", 7, 7},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(Sample().FindOneOf(rCase.sSet).GetIndex(), rCase.nFirst) << rCase.sName;
        EXPECT_EQ(Sample().FindLastOf(rCase.sSet).GetIndex(), rCase.nLast) << rCase.sName;
    }
}

TEST(StringUSearchTest, StartsAndEndsByBytes)
{
    EXPECT_TRUE(Sample().StartsWith(u"a\u00e9"));
    EXPECT_TRUE(Sample().StartsWith("a\xC3\xA9"));
    EXPECT_TRUE(Sample().StartsWith(""));
    EXPECT_FALSE(Sample().StartsWith("A"));
    EXPECT_FALSE(Sample().StartsWith(Sample() + "x"));
    EXPECT_TRUE(Sample().EndsWith(u"A\u00c9"));
    EXPECT_TRUE(Sample().EndsWith(u"\u00c9"));
    EXPECT_TRUE(Sample().EndsWith(""));
    EXPECT_FALSE(Sample().EndsWith(u"a\u00e9"));
}

TEST(StringUSearchTest, Replaces)
{
    struct Case {
        std::string_view sName;
        CStringU sText;
        char16_t chOld;
        char16_t chNew;
        int nCount;
        std::string_view sStored;
        int nCountNoCase;
        std::string_view sStoredNoCase;
    };
    const Case cases[] = {
        {"in place", "abAb", u'a', u'x', 1, "xbAb", 2, "xbxb"},
        {"absent", "abAb", u'z', u'x', 0, "abAb", 0, "abAb"},
        {"by itself: counted", "abAb", u'b', u'b', 2, "abAb", 2, "abAb"},
        {"zero for the old one", "ab", 0, u'x', 0, "ab", 0, "ab"},
        {"zero for the old one where there is one", CStringU("a\0b"sv), 0, u'x', 0, "a\0b"sv, 0,
         "a\0b"sv},
        {"zero for the new one", "ab", u'a', 0, 0, "ab", 0, "ab"},
        {"plain text, only the old one isn't ASCII", "kK", 0x212A, u'x', 0, "kK", 0, "kK"},
        {"plain text gets a marker", "aba", u'b', 0xE9, 1, "\x80\x61\xC3\xA9\x61", 1,
         "\x80\x61\xC3\xA9\x61"},
        {"marked text gets plain", u"a\u00e9", 0xE9, u'e', 1, "ae", 1, "ae"},
        {"marked text stays marked",
         u"a\u00e9"
         u"A",
         u'a', u'b', 1, "\x80\x62\xC3\xA9\x41", 2, "\x80\x62\xC3\xA9\x62"},
        {"marked text, absent", u"a\u00e9", u'z', u'b', 0, "\x80\x61\xC3\xA9", 0,
         "\x80\x61\xC3\xA9"},
        {"marked text, the case of an accent", u"\u00c9\u00e9", 0xC9, 0x20AC, 1,
         "\xE2\x82\xAC\xC3\xA9", 2, "\xE2\x82\xAC\xE2\x82\xAC"},
        {"empty", "", u'a', u'b', 0, "", 0, ""},
    };
    for (const Case& rCase : cases) {
        CStringU sText = rCase.sText;
        EXPECT_EQ(sText.Replace(rCase.chOld, rCase.chNew), rCase.nCount) << rCase.sName;
        EXPECT_EQ(sText.Stored(), rCase.sStored) << rCase.sName;
        CStringU sNoCase = rCase.sText;
        EXPECT_EQ(sNoCase.ReplaceNoCase(rCase.chOld, rCase.chNew), rCase.nCountNoCase)
            << rCase.sName;
        EXPECT_EQ(sNoCase.Stored(), rCase.sStoredNoCase) << rCase.sName;
    }
}

TEST(StringUSearchTest, RandomTextsAreSearchedByTheirUnits)
{
    CRandomText random(5);
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        const std::u16string sUnits = random.Text(12);
        const std::u16string sNeedle =
            random.Number(1) == 0 ? random.Text(2) : sUnits.substr(sUnits.size() / 2, 2);
        const CStringU sText(sUnits);
        const auto byteIndex = [&](std::size_t nUnit) {
            return nUnit == std::u16string::npos
                       ? -1
                       : CStringU(sUnits.substr(0, nUnit)).GetByteLength();
        };
        const auto place = [&](std::size_t nUnit) {
            return byteIndex(std::min(nUnit, sUnits.size()));
        };
        ASSERT_EQ(sText.Find(CStringU(sNeedle)), byteIndex(sUnits.find(sNeedle)));
        ASSERT_EQ(sText.ReverseFind(CStringU(sNeedle)), byteIndex(sUnits.rfind(sNeedle)));
        ASSERT_EQ(sText.StartsWith(CStringU(sNeedle)), sUnits.starts_with(sNeedle));
        ASSERT_EQ(sText.EndsWith(CStringU(sNeedle)), sUnits.ends_with(sNeedle));
        ASSERT_EQ(sText.FindOneOf(CStringU(sNeedle)).GetIndex(),
                  place(sUnits.find_first_of(sNeedle)));
        ASSERT_EQ(sText.FindLastOf(CStringU(sNeedle)).GetIndex(),
                  place(sUnits.find_last_of(sNeedle)));
        const char16_t chOld = random.Unit(), chNew = random.Unit();
        ASSERT_EQ(sText.Find(chOld).GetIndex(), place(sUnits.find(chOld)));
        const auto isSame = [&](char16_t ch) { return model::Lower(ch) == model::Lower(chOld); };
        ASSERT_EQ(sText.FindNoCase(chOld).GetIndex(),
                  place(static_cast<std::size_t>(
                      std::find_if(sUnits.begin(), sUnits.end(), isSame) - sUnits.begin())));
        CStringU sNoCase = sText;
        std::u16string sReplacedNoCase = sUnits;
        const bool bNever = !sText.IsUtf8() && chNew < 0x80 && chOld >= 0x80;
        const auto nCountNoCase = bNever ? 0 : std::count_if(sUnits.begin(), sUnits.end(), isSame);
        if (!bNever)
            std::replace_if(sReplacedNoCase.begin(), sReplacedNoCase.end(), isSame, chNew);
        ASSERT_EQ(sNoCase.ReplaceNoCase(chOld, chNew), nCountNoCase);
        ASSERT_EQ(sNoCase, CStringU(sReplacedNoCase));
        std::u16string sReplaced = sUnits;
        const auto nCount = std::count(sUnits.begin(), sUnits.end(), chOld);
        std::replace(sReplaced.begin(), sReplaced.end(), chOld, chNew);
        CStringU sChanged = sText;
        ASSERT_EQ(sChanged.Replace(chOld, chNew), nCount);
        ASSERT_EQ(sChanged, CStringU(sReplaced));
    }
}

} // namespace
