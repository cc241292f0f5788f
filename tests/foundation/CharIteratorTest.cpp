#include "foundation/CharIterator.h"

#include "foundation/RandomText.h"
#include "foundation/StringU.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace
{

TEST(CharIteratorTest, GoesByCharactersBothWays)
{
    const CStringU sText(u"a\u00e9\u20ac");
    TCharIterator it = sText.begin();
    EXPECT_EQ(it.GetIndex(), 0);
    EXPECT_EQ(*it, u'a');
    ++it;
    EXPECT_EQ(it.GetIndex(), 1);
    EXPECT_EQ(*it, u'\u00e9');
    it += 1;
    EXPECT_EQ(it.GetIndex(), 3);
    EXPECT_EQ(*it, u'\u20ac');
    EXPECT_FALSE(it.IsEnd());
    ++it;
    EXPECT_TRUE(it.IsEnd());
    EXPECT_EQ(it.GetIndex(), sText.GetByteLength());
    EXPECT_EQ(*it, u'\0');
    EXPECT_EQ(it, sText.end());
    it -= 2;
    EXPECT_EQ(it.GetIndex(), 1);
    --it;
    EXPECT_EQ(it, sText.begin());
}

TEST(CharIteratorTest, StopsAtBothEnds)
{
    for (const CStringU& rsText : {CStringU("ab"), CStringU(u"\u00e9\u20ac"), CStringU()}) {
        TCharIterator it = rsText.begin();
        --it;
        EXPECT_EQ(it.GetIndex(), 0);
        it += 99;
        EXPECT_TRUE(it.IsEnd());
        EXPECT_EQ(it.GetIndex(), rsText.GetByteLength());
        ++it;
        EXPECT_EQ(it.GetIndex(), rsText.GetByteLength());
        it -= 99;
        EXPECT_EQ(it.GetIndex(), 0);
        EXPECT_EQ(rsText.begin() - -99, rsText.end());
        EXPECT_EQ(rsText.end() + -99, rsText.begin());
        EXPECT_EQ(TCharIterator(rsText, -5).GetIndex(), 0);
        EXPECT_TRUE(TCharIterator(rsText, 99).IsEnd());
    }
}

TEST(CharIteratorTest, OfAPlainTextIsTheByte)
{
    const CStringU sText("a\xE9", TTextKind::Plain);
    EXPECT_EQ(*(sText.begin() + 1), u'\u00e9');
    EXPECT_EQ(*sText.end(), u'\0');
    EXPECT_TRUE((sText.begin() + 2).IsEnd());
}

TEST(CharIteratorTest, ReadsTheEndWhenItsTextGotShorter)
{
    CStringU sText("abc");
    TCharIterator it = sText.end();
    sText = "x";
    EXPECT_TRUE(it.IsEnd());
    EXPECT_EQ(*it, u'\0');
    EXPECT_EQ(it.GetIndex(), 1);
    --it;
    EXPECT_EQ(*it, u'x');
}

TEST(CharIteratorTest, OddBytesAreCharactersOfSomeKind)
{
    const CStringU sText("\xF8z\x81\x82", TTextKind::Plain);
    TCharIterator it = sText.begin();
    EXPECT_EQ(*it, u'?');
    ++it;
    EXPECT_EQ(*it, u'z');
    ++it; // over the continuation bytes, which belong to no lead
    EXPECT_TRUE(it.IsEnd());
}

TEST(CharIteratorTest, WalksEveryRandomTextForwardsAndBackwards)
{
    CRandomText random(7);
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        const std::u16string sUnits = random.Text(10);
        const CStringU sText(sUnits);
        std::u16string sForwards, sBackwards;
        for (const char16_t chUnit : sText)
            sForwards += chUnit;
        for (TCharIterator it = sText.end(); it != sText.begin();)
            sBackwards += *--it;
        std::reverse(sBackwards.begin(), sBackwards.end());
        ASSERT_EQ(sForwards, sUnits);
        ASSERT_EQ(sBackwards, sUnits);
        ASSERT_EQ(sText.GetCharCount(), static_cast<int>(sUnits.size()));
        ASSERT_EQ(sText.ToWide(), sUnits);
    }
}

} // namespace
