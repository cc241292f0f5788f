#include "foundation/TextEncoding.h"

#include <gtest/gtest.h>

#include <string_view>

namespace
{

using namespace std::string_view_literals;

TEST(TextEncodingTest, ValuesMarksAndUnits)
{
    struct Case {
        TTextEncoding encoding;
        int nValue;
        std::string_view sMark;
        bool bTwoBytes;
        bool bBigEndian;
    };
    const Case cases[] = {
        {EncodingAnsi, 0, "", false, false},
        {EncodingUtf8, 1, "", false, false},
        {EncodingUtf16, 2, "", true, false},
        {EncodingUtf16BigEndian, 3, "", true, true},
        {EncodingUtf8Bom, 4, "\xEF\xBB\xBF", false, false},
        {EncodingUtf16Bom, 5, "\xFF\xFE", true, false},
        {EncodingUtf16BigEndianBom, 6, "\xFE\xFF", true, true},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(static_cast<int>(rCase.encoding), rCase.nValue);
        EXPECT_EQ(gMarkOf(rCase.encoding), rCase.sMark) << rCase.nValue;
        EXPECT_EQ(gHasTwoByteUnits(rCase.encoding), rCase.bTwoBytes) << rCase.nValue;
        EXPECT_EQ(gIsBigEndian(rCase.encoding), rCase.bBigEndian) << rCase.nValue;
    }
}

// The rows of the detection, byte by byte; -1 stands for no such byte.
int DetectByRows(int nFirst, int nSecond, int nThird, int nDefault)
{
    if (nFirst == 0xEF && nSecond == 0xBB && nThird == 0xBF)
        return 4;
    if (nFirst == 0xFF && nSecond == 0xFE)
        return 5;
    if (nFirst == 0xFE && nSecond == 0xFF)
        return 6;
    if (nFirst == 0 && nSecond > 0)
        return 3;
    if (nFirst > 0 && nFirst != 0xEF && nFirst != 0xFE && nFirst != 0xFF && nSecond == 0)
        return 2;
    return nDefault;
}

TEST(TextEncodingTest, EveryPairOfFirstBytesIsDetectedByItsRow)
{
    EXPECT_EQ(gDetectEncoding("", EncodingUtf8), EncodingUtf8);
    for (int nFirst = 0; nFirst < 256; ++nFirst) {
        char bytes[3] = {static_cast<char>(nFirst), 0, 0};
        EXPECT_EQ(gDetectEncoding({bytes, 1}, EncodingUtf8), EncodingUtf8) << nFirst;
        for (int nSecond = 0; nSecond < 256; ++nSecond) {
            bytes[1] = static_cast<char>(nSecond);
            ASSERT_EQ(gDetectEncoding({bytes, 2}, EncodingAnsi),
                      DetectByRows(nFirst, nSecond, -1, 0));
            for (const int nThird : {0, 0xBF, 0xFF}) {
                bytes[2] = static_cast<char>(nThird);
                ASSERT_EQ(gDetectEncoding({bytes, 3}, EncodingUtf8),
                          DetectByRows(nFirst, nSecond, nThird, 1));
            }
        }
    }
}

} // namespace
