#include "foundation/RandomText.h"
#include "foundation/StringU.h"
#include "support/PrintStringU.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace
{

// The rule of the order, step by step and by single bytes. Result: -1, 0, 1.
int OrderByRule(const std::string& rsLeft, const std::string& rsRight)
{
    const auto sign = [](auto nLeft, auto nRight) { return (nLeft > nRight) - (nLeft < nRight); };
    const auto textOf = [](const std::string& rsStored) {
        return !rsStored.empty() && rsStored[0] == '\x80' ? rsStored.substr(1) : rsStored;
    };
    const auto byte = [](const std::string& rs, std::size_t n) {
        return static_cast<int>(static_cast<unsigned char>(rs[n]));
    };
    if (rsLeft.size() != rsRight.size())
        return sign(rsLeft.size(), rsRight.size());
    const std::string sLeft = textOf(rsLeft), sRight = textOf(rsRight);
    if (sLeft.size() != sRight.size())
        return sign(sLeft.size(), sRight.size());
    const std::size_t n = sLeft.size();
    const std::size_t nTail = n >= 8 ? 8 : n >= 4 ? 4 : 0;
    for (std::size_t i = 0; i < nTail; ++i) { // the last byte has the most weight
        if (sLeft[n - 1 - i] != sRight[n - 1 - i])
            return sign(byte(sLeft, n - 1 - i), byte(sRight, n - 1 - i));
    }
    for (std::size_t i = 0; i < n - nTail; ++i) {
        if (sLeft[i] != sRight[i])
            return sign(byte(sLeft, i), byte(sRight, i));
    }
    return 0;
}

void ExpectOrder(const CStringU& rsLeft, const CStringU& rsRight)
{
    const int nExpected = OrderByRule(std::string(rsLeft.Stored()), std::string(rsRight.Stored()));
    ASSERT_EQ(rsLeft < rsRight, nExpected < 0)
        << testing::PrintToString(rsLeft) << testing::PrintToString(rsRight);
    ASSERT_EQ(rsLeft > rsRight, nExpected > 0)
        << testing::PrintToString(rsLeft) << testing::PrintToString(rsRight);
    ASSERT_EQ(rsLeft == rsRight, nExpected == 0)
        << testing::PrintToString(rsLeft) << testing::PrintToString(rsRight);
}

CStringU Plain(const std::string& rsBytes)
{
    return {rsBytes, TTextKind::Plain};
}

TEST(StringUOrderTest, TheLesserOfTwo)
{
    struct Case {
        std::string_view sName;
        std::string_view sLesser;
        std::string_view sGreater;
    };
    const Case cases[] = {
        {"the shorter, though behind in the alphabet", "z", "aa"},
        {"empty first", "", "a"},
        {"below 4 bytes by the alphabet", "abz", "baa"},
        {"below 4 bytes by unsigned bytes", "ab\x7F", "ab\x80"},
        {"4 bytes from the end", "baaa", "aaab"},
        {"7 bytes: the last 4 before the first 3", "zzzaaaa", "aaaaaab"},
        {"7 bytes: then the first 3 by the alphabet", "aazaaaa", "baaaaaa"},
        {"8 bytes from the end", "zaaaaaaa", "aaaaaaab"},
        {"8 bytes: the number is unsigned", "aaaaaaa\x7F", "aaaaaaa\x80"},
        {"9 bytes: the last 8 before the first", "zaaaaaaaa", "abaaaaaaa"},
        {"9 bytes: then the first", "aaaaaaaaa", "baaaaaaaa"},
        {"one stored length: the one with a marker has less text", "\x80\x61\xC3\xA9",
         "\x61\x61\x61\x61"},
        {"a marked text counts its marker", "zzz", "\x80\x61\xC3\xA9"},
    };
    for (const Case& rCase : cases) {
        const CStringU sLesser(rCase.sLesser, TTextKind::Plain);
        const CStringU sGreater(rCase.sGreater, TTextKind::Plain);
        EXPECT_LT(sLesser, sGreater) << rCase.sName;
        EXPECT_FALSE(sGreater < sLesser) << rCase.sName;
        EXPECT_NE(sLesser, sGreater) << rCase.sName;
        ExpectOrder(sLesser, sGreater);
    }
}

TEST(StringUOrderTest, AMapListsItsKeysInThisOrder)
{
    std::map<CStringU, int> map{{"zz", 0}, {"b", 0}, {"abc", 0}, {"a", 0}, {u"\u00e9", 0}};
    std::vector<CStringU> keys;
    for (const auto& [sKey, nValue] : map)
        keys.push_back(sKey);
    EXPECT_EQ(keys, (std::vector<CStringU>{"a", "b", "zz", u"\u00e9", "abc"}));
}

TEST(StringUOrderTest, EveryPairOfOneByteTexts)
{
    for (int nLeft = 0; nLeft < 256; ++nLeft) {
        for (int nRight = 0; nRight < 256; ++nRight) {
            ExpectOrder(Plain(std::string(1, static_cast<char>(nLeft))),
                        Plain(std::string(1, static_cast<char>(nRight))));
        }
    }
}

TEST(StringUOrderTest, EveryTwoByteTextWithItsSwappedOne)
{
    for (int nFirst = 0; nFirst < 256; ++nFirst) {
        for (int nSecond = 0; nSecond < 256; ++nSecond) {
            const std::string sText{static_cast<char>(nFirst), static_cast<char>(nSecond)};
            ExpectOrder(Plain(sText), Plain({sText[1], sText[0]}));
            ExpectOrder(Plain(sText), Plain(sText));
            ExpectOrder(Plain(sText), Plain(sText.substr(1)));
        }
    }
}

TEST(StringUOrderTest, RandomTextsOfTwoLettersAreInTheOrderOfTheRule)
{
    CRandomText random(3);
    const auto draw = [&random](int nLength) {
        std::string sText;
        for (int i = 0; i < nLength; ++i)
            sText += "\x80\xE9z"[random.Number(2)];
        return Plain(sText);
    };
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        const int nLength = random.Number(20);
        ExpectOrder(draw(nLength), draw(nLength + random.Number(1)));
        if (HasFatalFailure())
            return;
    }
}

} // namespace
