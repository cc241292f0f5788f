#include "foundation/Utf8Units.h"

#include "foundation/RandomText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace
{

using namespace std::string_view_literals;

struct TDecoded {
    char16_t chUnit;
    std::size_t nMoves;
};

// The table of the first byte, as slow and plain as it can be written.
TDecoded DecodeByTable(const std::string& rsText)
{
    const auto byteAt = [&rsText](std::size_t nAt) {
        return nAt < rsText.size() ? static_cast<int>(static_cast<unsigned char>(rsText[nAt])) : 0;
    };
    const int b0 = byteAt(0), b1 = byteAt(1), b2 = byteAt(2), b3 = byteAt(3);
    if (b0 == 0)
        return {0, 0};
    if (b0 < 128)
        return {static_cast<char16_t>(b0), 1};
    if (b0 % 64 < 32)
        return {static_cast<char16_t>(b0 % 32 * 64 + b1 % 64), 2};
    if (b0 % 32 < 16)
        return {static_cast<char16_t>(b0 % 16 * 4096 + b1 % 64 * 64 + b2 % 64), 3};
    if (b0 % 16 < 8)
        return {static_cast<char16_t>(b1 % 16 * 4096 + b2 % 64 * 64 + b3 % 64), 4};
    return {u'?', 1};
}

std::string EncodeByTable(char16_t chUnit)
{
    const int u = chUnit;
    const auto bytes = [](auto... b) { return std::string{static_cast<char>(b)...}; };
    if (u < 0x80)
        return bytes(u);
    if (u < 0x800)
        return bytes(0xC0 + u / 64, 0x80 + u % 64);
    return bytes(0xE0 + u / 4096, 0x80 + u / 64 % 64, 0x80 + u % 64);
}

void ExpectDecodedAsTheTable(const std::string& rsText)
{
    std::size_t nIndex = 0;
    const char16_t chUnit = gDecodeUnit(rsText, nIndex);
    const TDecoded expected = DecodeByTable(rsText);
    EXPECT_EQ(chUnit, expected.chUnit) << testing::PrintToString(rsText);
    EXPECT_EQ(nIndex, expected.nMoves) << testing::PrintToString(rsText);
}

TEST(Utf8UnitsTest, DecodesTheRowsOfTheTable)
{
    struct Case {
        std::string_view sName;
        std::string_view sText;
        char16_t chUnit;
        std::size_t nMoves;
    };
    const Case cases[] = {
        {"the end", "", 0, 0},
        {"a zero", "\0a"sv, 0, 0},
        {"ASCII", "a", u'a', 1},
        {"two bytes", "\xC3\xA9", 0xE9, 2},
        {"three bytes", "\xE2\x82\xAC", 0x20AC, 3},
        {"a surrogate by itself", "\xED\xA0\xBD", 0xD83D, 3},
        {"four bytes, cut to 16 bits", "\xF0\x9F\x98\x80", 0xF600, 4},
        {"not UTF-8",
         "\xF8"
         "a",
         u'?', 1},
        {"the last byte", "\xFF", u'?', 1},
        {"a continuation byte of the two-byte row", "\x81\x82", 0x42, 2},
        {"a continuation byte of the three-byte row", "\xA1\x82\x83", 0x1083, 3},
        {"a continuation byte of the four-byte row", "\xB0\x82\x83\x84", 0x20C4, 4},
        {"no trail byte: it reads as 0", "\xC3", 0xC0, 2},
        {"no last trail byte", "\xE2\x82", 0x2080, 3},
        {"a zero for a trail byte is passed over", "\xC3\0a"sv, 0xC0, 2},
        {"an overlong form", "\xC1\x81", u'A', 2},
    };
    for (const Case& rCase : cases) {
        std::size_t nIndex = 0;
        EXPECT_EQ(gDecodeUnit(rCase.sText, nIndex), rCase.chUnit) << rCase.sName;
        EXPECT_EQ(nIndex, rCase.nMoves) << rCase.sName;
    }
}

TEST(Utf8UnitsTest, AnIndexPastTheEndIsTheEnd)
{
    std::size_t nIndex = 7;
    EXPECT_EQ(gDecodeUnit("abc", nIndex), 0);
    EXPECT_EQ(nIndex, 7U);
    EXPECT_EQ(gNextCharacter("abc", 7), 3U);
    EXPECT_EQ(gNextCharacter("abc", 3), 3U);
}

TEST(Utf8UnitsTest, EveryOneAndTwoByteTextDecodesAsTheTable)
{
    ExpectDecodedAsTheTable("");
    for (int nFirst = 0; nFirst < 256; ++nFirst) {
        ExpectDecodedAsTheTable(std::string(1, static_cast<char>(nFirst)));
        for (int nSecond = 0; nSecond < 256; ++nSecond) {
            ExpectDecodedAsTheTable({static_cast<char>(nFirst), static_cast<char>(nSecond)});
        }
    }
}

TEST(Utf8UnitsTest, EveryUnitComesBack)
{
    for (int nUnit = 0; nUnit < 0x10000; ++nUnit) {
        const char16_t chUnit = static_cast<char16_t>(nUnit);
        const std::u16string_view sUnit(&chUnit, 1);
        // A zero ends what is measured, but is encoded as any other.
        std::string sBytes(nUnit == 0 ? 1 : gMeasureUnits(sUnit).nBytes, '\0');
        ASSERT_EQ(gEncodeUnits(sUnit, sBytes.data()), sBytes.data() + sBytes.size());
        ASSERT_EQ(sBytes, EncodeByTable(chUnit));
        std::size_t nIndex = 0;
        ASSERT_EQ(gDecodeUnit(sBytes, nIndex), chUnit);
        ASSERT_EQ(nIndex, nUnit == 0 ? 0U : sBytes.size());
    }
}

TEST(Utf8UnitsTest, RandomBytesDecodeAsTheTable)
{
    CRandomText random(1);
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        const std::string sText = random.Bytes(40);
        std::u16string sExpected;
        for (std::size_t nAt = 0; nAt < sText.size();) {
            const TDecoded decoded = DecodeByTable(sText.substr(nAt));
            if (decoded.nMoves == 0)
                break;
            sExpected += decoded.chUnit;
            nAt += decoded.nMoves;
        }
        ASSERT_EQ(gDecodeUnits(sText), sExpected) << testing::PrintToString(sText);
    }
}

TEST(Utf8UnitsTest, RandomUnitsEncodeAsTheTable)
{
    CRandomText random(2);
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        const std::u16string sText = random.Text(60);
        std::string sExpected;
        for (const char16_t chUnit : sText)
            sExpected += EncodeByTable(chUnit);
        ASSERT_EQ(gMeasureUnits(sText).nUnits, sText.size());
        std::string sBytes(gMeasureUnits(sText).nBytes, '\0');
        ASSERT_EQ(gEncodeUnits(sText, sBytes.data()) - sBytes.data(),
                  static_cast<std::ptrdiff_t>(sExpected.size()));
        ASSERT_EQ(sBytes, sExpected);
    }
}

TEST(Utf8UnitsTest, MeasuringEndsAtTheFirstZeroAtEveryPlace)
{
    for (std::size_t nLength = 0; nLength <= 40; ++nLength) {
        for (const char16_t chUnit : {u'a', u'\u0080', u'\u07ff', u'\u0800', u'\uffff'}) {
            std::u16string sText(nLength, chUnit);
            EXPECT_EQ(gMeasureUnits(sText).nUnits, nLength);
            for (std::size_t nAt = 0; nAt < nLength; ++nAt) {
                sText.back() = u'\0';
                sText[nAt] = u'\0';
                EXPECT_EQ(gMeasureUnits(sText).nUnits, nAt) << "length " << nLength;
                EXPECT_EQ(gMeasureUnits(sText).nBytes, nAt * EncodeByTable(chUnit).size());
                sText[nAt] = chUnit;
            }
        }
    }
}

TEST(Utf8UnitsTest, StepsGoByWholeSequences)
{
    struct Case {
        std::string_view sName;
        std::string_view sText;
        std::size_t nIndex;
        std::size_t nNext;
        std::size_t nPrevious;
        std::size_t nStart; // of the sequence, decoded from the beginning
    };
    const Case cases[] = {
        {"ASCII", "abc", 1, 2, 0, 1},
        {"the beginning", "abc", 0, 1, 0, 0},
        {"the end", "abc", 3, 3, 2, 3},
        {"between sequences", "\xC3\xA9\xE2\x82\xAC", 2, 5, 0, 2},
        {"inside a sequence", "a\xE2\x82\xAC", 2, 4, 1, 1},
        {"at the last byte of a sequence", "a\xE2\x82\xAC", 3, 4, 1, 1},
        {"a lead that swallows ASCII", "\xE2zzz", 2, 3, 1, 0},
        {"behind a lead that swallows ASCII", "\xE2zzz", 3, 4, 2, 3},
        {"the end behind a sequence", "a\xE2\x82\xAC", 4, 4, 1, 4},
        {"four bytes", "a\xF0\x9F\x98\x80", 5, 5, 1, 5},
        {"four steps back at most", "a\x80\x80\x80\x80\x80", 6, 6, 2, 5},
        {"continuation bytes in pairs", "a\x80\x80\x80\x80\x80", 4, 6, 0, 3},
        {"all continuation bytes are passed over", "\xC3\x80\x80\x80\x80\x80z", 0, 6, 0, 0},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gNextCharacter(rCase.sText, rCase.nIndex), rCase.nNext) << rCase.sName;
        EXPECT_EQ(gPreviousCharacter(rCase.sText, rCase.nIndex), rCase.nPrevious) << rCase.sName;
        EXPECT_EQ(gSequenceStart(rCase.sText, rCase.nIndex), rCase.nStart) << rCase.sName;
    }
}

TEST(Utf8UnitsTest, SwapsTheBytesOfEachUnit)
{
    EXPECT_EQ(gSwapUnitBytes(u""), u"");
    EXPECT_EQ(gSwapUnitBytes(u"\u1234a"), u"\u3412\u6100");
}

} // namespace
