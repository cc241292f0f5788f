// Comparing and converting without regard to case.

#include "foundation/RandomText.h"
#include "foundation/StringModel.h"
#include "foundation/StringU.h"
#include "support/PrintStringU.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace std::string_view_literals;

int Sign(int nValue)
{
    return (nValue > 0) - (nValue < 0);
}

// By units: what the comparison must give on every well-formed text.
int CompareByUnits(std::u16string_view sLeft, std::u16string_view sRight)
{
    for (std::size_t i = 0; i < sLeft.size() && i < sRight.size(); ++i) {
        if (model::Lower(sLeft[i]) != model::Lower(sRight[i]))
            return Sign(model::Lower(sLeft[i]) - model::Lower(sRight[i]));
    }
    return Sign(static_cast<int>(sLeft.size()) - static_cast<int>(sRight.size()));
}

TEST(StringUNoCaseTest, Compares)
{
    struct Case {
        std::string_view sName;
        CStringU sLeft;
        CStringU sRight;
        int nSign;
    };
    const Case cases[] = {
        {"both empty", "", "", 0},
        {"empty is the lesser", "", "a", -1},
        {"the letter decides", "ABC", "abd", -1},
        {"capital and small", "ABC", "abc", 0},
        {"the beginning is the lesser", "AB", "abc", -1},
        {"accents", u"\u00c9", u"\u00e9", 0},
        {"accents behind a marker", u"X\u00c9y", u"x\u00e9Y", 0},
        {"plain and marked", "abz", u"AB\u00e9", -1},
        {"by value, not by the alphabet", "Z", "[", 1},
        {"Greek", u"\u03a9", u"\u03c9", 0},
        {"the kelvin sign is a k", u"\u212a", "K", 0},
        {"the first difference inside a character", u"a\u00e9", u"a\u00ea", -1},
        {"the first difference at a lead byte", u"a\u00e9", u"a\u20ac", -1},
        {"surrogates have no case", u"\U00010400", u"\U00010428", -1},
        {"long and the same", "THE QUICK BROWN FOX JUMPS", "the quick brown fox jumps", 0},
        {"long and the last differs", "THE QUICK BROWN FOX JUMPS", "the quick brown fox jumpt", -1},
        {"@ and ` are no letters", "ABCDEFG@", "abcdefg`", -1},
        {"[ and { are no letters", "ABCDEFG[", "abcdefg{", -1},
        {"zeros inside are characters", CStringU("a\0b"sv), CStringU("A\0c"sv), -1},
        {"a zero at the end is more than the end", CStringU("a\0"sv), CStringU("A"), 1},
        {"equal zeros", CStringU("a\0B"sv), CStringU("A\0b"sv), 0},
        {"an overlong letter is that letter", CStringU("\xC1\x81", TTextKind::Plain), "a", 0},
        {"0xF8 is a question mark", CStringU("\xF8", TTextKind::Plain), "?", 0},
        {"cut inside a character", CStringU("\xC3\xA9", TTextKind::Plain),
         CStringU("\xC3", TTextKind::Plain), 1},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(Sign(CompareNoCase(rCase.sLeft, rCase.sRight)), rCase.nSign) << rCase.sName;
        EXPECT_EQ(Sign(CompareNoCase(rCase.sRight, rCase.sLeft)), -rCase.nSign) << rCase.sName;
        EXPECT_EQ(Sign(rCase.sLeft.CompareNoCase(rCase.sRight)), rCase.nSign) << rCase.sName;
        EXPECT_EQ(TStringLessNoCase()(rCase.sLeft, rCase.sRight), rCase.nSign < 0) << rCase.sName;
    }
}

TEST(StringUNoCaseTest, EveryPairOfAsciiCharactersInsideALongText)
{
    for (int nLeft = 1; nLeft < 128; ++nLeft) {
        for (int nRight = 1; nRight < 128; ++nRight) {
            std::string sLeft = "aBcDeFgHi", sRight = "AbCdEfGhI";
            sLeft[5] = static_cast<char>(nLeft);
            sRight[5] = static_cast<char>(nRight);
            const int nExpected = model::Lower(static_cast<char16_t>(nLeft)) -
                                  model::Lower(static_cast<char16_t>(nRight));
            ASSERT_EQ(Sign(CompareNoCase(sLeft, sRight)), Sign(nExpected))
                << nLeft << ' ' << nRight;
        }
    }
}

TEST(StringUNoCaseTest, TheFirstDifferenceDecidesAtEveryPlaceOfEveryLength)
{
    for (int nLength = 1; nLength <= 100; ++nLength) {
        const std::string sLeft(static_cast<std::size_t>(nLength), 'm');
        const std::string sCapitals(static_cast<std::size_t>(nLength), 'M');
        EXPECT_EQ(CompareNoCase(sLeft, sCapitals), 0) << nLength;
        EXPECT_LT(CompareNoCase(sLeft, sCapitals + "a"), 0) << nLength;
        for (std::size_t nAt = 0; nAt < sLeft.size(); ++nAt) {
            std::string sRight = sCapitals;
            sRight.back() = 'A';
            sRight[nAt] = 'Z';
            EXPECT_LT(CompareNoCase(sLeft, sRight), 0) << nLength << ' ' << nAt;
            CStringU sAccent(sLeft.substr(0, nAt));
            sAccent += u'\u00e9';
            EXPECT_LT(CompareNoCase(sLeft, sAccent), 0) << nLength << ' ' << nAt;
        }
    }
}

TEST(StringUNoCaseTest, EveryUnitIsTheSameAsItsSmallLetter)
{
    for (int nUnit = 1; nUnit < 0x10000; ++nUnit) {
        const auto chUnit = static_cast<char16_t>(nUnit);
        ASSERT_EQ(
            CompareNoCase(CStringU(chUnit), CStringU(static_cast<char16_t>(model::Lower(chUnit)))),
            0)
            << nUnit;
    }
}

int SignOf(const std::string& rsLeft, const std::string& rsRight)
{
    return Sign(
        CompareNoCase(CStringU(rsLeft, TTextKind::Plain), CStringU(rsRight, TTextKind::Plain)));
}

int ModelSignOf(const std::string& rsLeft, const std::string& rsRight)
{
    return model::CompareNoCase(model::Text(rsLeft), model::Text(rsRight));
}

TEST(StringUNoCaseTest, EveryTextOfTwoBytesAgainstEveryOneOfOneByte)
{
    for (int nFirst = 0; nFirst < 256; ++nFirst) {
        for (int nSecond = 0; nSecond < 256; ++nSecond) {
            const std::string sTwo{static_cast<char>(nFirst), static_cast<char>(nSecond)};
            const std::string sFirst = sTwo.substr(0, 1), sSecond = sTwo.substr(1);
            ASSERT_EQ(SignOf(sFirst, sSecond), ModelSignOf(sFirst, sSecond)) << nFirst << nSecond;
            ASSERT_EQ(SignOf(sTwo, sFirst), ModelSignOf(sTwo, sFirst)) << nFirst << nSecond;
            ASSERT_EQ(SignOf(sSecond, sTwo), ModelSignOf(sSecond, sTwo)) << nFirst << nSecond;
            ASSERT_EQ(SignOf(sTwo, sTwo), 0);
        }
    }
}

// All texts of up to two bytes of these, which are of each kind.
std::vector<std::string> ShortTexts()
{
    const std::string sAlphabet("\0Aa\x7F\x80\x81\xC3\xE2\xF0\xF8"sv);
    std::vector<std::string> texts{""};
    for (const char chFirst : sAlphabet) {
        texts.emplace_back(1, chFirst);
        for (const char chSecond : sAlphabet)
            texts.push_back({chFirst, chSecond});
    }
    return texts;
}

TEST(StringUNoCaseTest, MalformedTextsHaveOneOrderToo)
{
    std::vector<CStringU> texts;
    for (const std::string& rsBytes : ShortTexts())
        texts.emplace_back(rsBytes, TTextKind::Plain);
    const TStringLessNoCase less;
    for (const CStringU& rsA : texts) {
        ASSERT_FALSE(less(rsA, rsA));
        for (const CStringU& rsB : texts) {
            ASSERT_FALSE(less(rsA, rsB) && less(rsB, rsA));
            const bool bSame = !less(rsA, rsB) && !less(rsB, rsA);
            for (const CStringU& rsC : texts) {
                // Transitive, and so is being the same.
                ASSERT_FALSE(less(rsA, rsB) && less(rsB, rsC) && !less(rsA, rsC))
                    << testing::PrintToString(rsA) << testing::PrintToString(rsB)
                    << testing::PrintToString(rsC);
                ASSERT_FALSE(bSame && less(rsA, rsC) != less(rsB, rsC))
                    << testing::PrintToString(rsA) << testing::PrintToString(rsB)
                    << testing::PrintToString(rsC);
            }
        }
    }
}

TEST(StringUNoCaseTest, AMapOfMalformedKeysFindsEachOfThem)
{
    std::map<CStringU, std::string, TStringLessNoCase> map;
    for (const std::string& rsBytes : ShortTexts())
        map.emplace(CStringU(rsBytes, TTextKind::Plain), rsBytes);
    for (const std::string& rsBytes : ShortTexts()) {
        const auto it = map.find(CStringU(rsBytes, TTextKind::Plain));
        ASSERT_NE(it, map.end()) << testing::PrintToString(rsBytes);
        ASSERT_EQ(ModelSignOf(it->second, rsBytes), 0);
    }
}

TEST(StringUNoCaseTest, RandomBytesCompareByWhatTheyDecodeTo)
{
    CRandomText random(12);
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        const std::string sCommon = random.Bytes(40);
        const std::string sLeft = sCommon + random.Bytes(4), sRight = sCommon + random.Bytes(4);
        ASSERT_EQ(SignOf(sLeft, sRight), ModelSignOf(sLeft, sRight))
            << testing::PrintToString(sLeft) << testing::PrintToString(sRight);
    }
}

TEST(StringUNoCaseTest, RandomTextsCompareByTheirUnits)
{
    CRandomText random(4);
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        const std::u16string sLeft = random.Text(nRound % 4 == 0 ? 120 : 20);
        std::u16string sRight = sLeft;
        if (random.Number(3) == 0)
            sRight = random.Text(20);
        for (char16_t& rchUnit : sRight) {
            if (random.Number(4) == 0)
                rchUnit = static_cast<char16_t>(model::Lower(rchUnit));
            if (random.Number(nRound % 4 == 0 ? 200 : 30) == 0)
                rchUnit = random.Unit();
        }
        ASSERT_EQ(Sign(CompareNoCase(sLeft, sRight)), CompareByUnits(sLeft, sRight))
            << testing::PrintToString(sLeft) << testing::PrintToString(sRight);
    }
}

TEST(StringUNoCaseTest, AMapFindsAKeyOfAnyCase)
{
    std::map<CStringU, int, TStringLessNoCase> map{{"Node", 1}, {u"\u00c9t\u00e9", 2}};
    EXPECT_EQ(map.at("NODE"), 1);
    EXPECT_EQ(map.at(u"\u00e9T\u00c9"), 2);
    EXPECT_FALSE(map.contains("nodes"));
}

TEST(StringUNoCaseTest, RandomTextsAreConvertedByTheirUnits)
{
    CRandomText random(13);
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        const std::u16string sUnits = random.Text(12);
        std::u16string sLower = sUnits, sUpper = sUnits;
        for (char16_t& rchUnit : sLower)
            rchUnit = model::Lower(rchUnit);
        for (char16_t& rchUnit : sUpper)
            rchUnit = model::Upper(rchUnit);
        ASSERT_EQ(CStringU(sUnits).MakeLower(), CStringU(sLower));
        ASSERT_EQ(CStringU(sUnits).MakeUpper(), CStringU(sUpper));
    }
}

TEST(StringUNoCaseTest, ConvertsCase)
{
    struct Case {
        std::string_view sName;
        CStringU sText;
        std::string_view sLower;
        std::string_view sUpper;
    };
    const Case cases[] = {
        {"empty", "", "", ""},
        {"plain", "aZ@[`{09", "az@[`{09", "AZ@[`{09"},
        {"of a plain text A to Z only", CStringU("A\xC9\xE9z", TTextKind::Plain), "a\xC9\xE9z",
         "A\xC9\xE9Z"},
        {"marked", u"A\u00c9\u00e9", "\x80\x61\xC3\xA9\xC3\xA9", "\x80\x41\xC3\x89\xC3\x89"},
        {"the result may be plain", u"A\u212a", "ak", "\x80\x41\xE2\x84\xAA"},
        {"the result may lose its lead", u"\u212a\u00c9", "\x80k\xC3\xA9", "\xE2\x84\xAA\xC3\x89"},
        {"nothing to change keeps malformed bytes", CStringU("\xC3", TTextKind::Plain), "\xC3\xA0",
         "\xC3"},
    };
    for (const Case& rCase : cases) {
        CStringU sLower = rCase.sText;
        EXPECT_EQ(&sLower.MakeLower(), &sLower);
        EXPECT_EQ(sLower.Stored(), rCase.sLower) << rCase.sName;
        CStringU sUpper = rCase.sText;
        EXPECT_EQ(&sUpper.MakeUpper(), &sUpper);
        EXPECT_EQ(sUpper.Stored(), rCase.sUpper) << rCase.sName;
    }
}

} // namespace
