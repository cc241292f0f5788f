#include "foundation/LineEnds.h"

#include "foundation/RandomText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace
{

using namespace std::string_view_literals;

template <class TUnit>
std::basic_string<TUnit> Put(std::basic_string_view<TUnit> sText, int& rnLine)
{
    std::basic_string<TUnit> sOut;
    EXPECT_TRUE(gPutWithLineEnds(sText, rnLine, [&sOut](std::basic_string_view<TUnit> sPiece) {
        EXPECT_FALSE(sPiece.empty());
        sOut += sPiece;
        return true;
    }));
    return sOut;
}

TEST(LineEndsTest, GoOutAsCarriageReturnAndLineFeed)
{
    struct Case {
        std::string_view sName;
        std::string_view sText;
        int nLine;
        std::string_view sOut;
        int nLineAfter;
    };
    const Case cases[] = {
        {"nothing", "", 0, "", 0},
        {"a character starts the first line", "a", 0, "a", 1},
        {"a line feed", "a\nb", 0, "a\r\nb", 2},
        {"both give one line end", "a\r\nb", 0, "a\r\nb", 2},
        {"a carriage return is dropped and starts the count", "\r", 0, "", 1},
        {"a carriage return inside", "a\rb", 5, "ab", 5},
        {"line feeds alone", "\n\n", 0, "\r\n\r\n", 3},
        {"a zero ends the text", "a\0\nb"sv, 0, "a", 1},
        {"a zero first isn't a character", "\0a"sv, 0, "", 0},
        {"counting goes on", "\n", 7, "\r\n", 8},
        {"other control characters stay", "\t\v\f\x0E\x0F\x01\x1F", 0, "\t\v\f\x0E\x0F\x01\x1F", 1},
        {"the end of a long run", "0123456789abcdef\n", 0, "0123456789abcdef\r\n", 2},
    };
    for (const Case& rCase : cases) {
        int nLine = rCase.nLine;
        EXPECT_EQ(Put(rCase.sText, nLine), rCase.sOut) << rCase.sName;
        EXPECT_EQ(nLine, rCase.nLineAfter) << rCase.sName;
    }
    int nLine = 0;
    EXPECT_EQ(Put(u"\u00e9\n\r\u0a0d"sv, nLine), u"\u00e9\r\n\u0a0d");
    EXPECT_EQ(nLine, 2);
}

TEST(LineEndsTest, ARefusedPieceStops)
{
    for (const std::string_view sText : {"a\nb"sv, "\nb"sv}) {
        int nLine = 0, nPieces = 0;
        EXPECT_FALSE(gPutWithLineEnds(sText, nLine, [&nPieces](std::string_view) {
            ++nPieces;
            return false;
        }));
        EXPECT_EQ(nPieces, 1);
    }
}

TEST(LineEndsTest, RandomBytesGoOutAsOneByOne)
{
    CRandomText random(20);
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        std::string sText = random.Bytes(40);
        for (char& rchByte : sText) {
            if (random.Number(6) == 0)
                rchByte = "\r\n\t\x0E\x10"[random.Number(4)];
            if (rchByte == '\0' && random.Number(3) != 0)
                rchByte = 'a';
        }
        std::string sExpected;
        int nExpected = 0;
        for (const char chByte : sText) {
            if (chByte == '\0')
                break;
            nExpected = nExpected == 0 ? 1 : nExpected;
            if (chByte == '\n') {
                sExpected += '\r';
                ++nExpected;
            }
            if (chByte != '\r')
                sExpected += chByte;
        }
        int nLine = 0;
        ASSERT_EQ(Put(std::string_view(sText), nLine), sExpected);
        ASSERT_EQ(nLine, nExpected);
    }
}

} // namespace
