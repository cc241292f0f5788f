#include "platform/base/Codec.h"

#include "platform/base/CodePage.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace
{

constexpr unsigned kCodePages[] = {437,  874,  932,  936,  949,  950,  1250,  1251,  1252,
                                   1253, 1254, 1255, 1256, 1257, 1258, 20127, 54936, kCodePageUtf8};

TEST(CodecTest, TheCodecOfACodePageIsMadeOnce)
{
    for (const unsigned nCodePage : kCodePages) {
        const ICodec* pCodec = gFindCodec(nCodePage);
        ASSERT_NE(pCodec, nullptr) << nCodePage;
        EXPECT_EQ(gFindCodec(nCodePage), pCodec) << nCodePage;
    }
    EXPECT_EQ(gFindCodec(0), nullptr);
}

TEST(CodecTest, EveryAsciiByteIsThatCharacterInEveryCodePage)
{
    for (const unsigned nCodePage : kCodePages) {
        const ICodec& rCodec = *gFindCodec(nCodePage);
        for (int nByte = 0; nByte < 0x80; ++nByte) {
            const std::string sByte(1, static_cast<char>(nByte));
            const std::u16string sUnit(1, static_cast<char16_t>(nByte));
            std::string_view sBytesRest(sByte);
            std::u16string_view sUnitsRest(sUnit);
            std::u16string sDecoded;
            std::string sEncoded;
            EXPECT_TRUE(rCodec.DecodeNext(sBytesRest, sDecoded));
            EXPECT_TRUE(rCodec.EncodeNext(sUnitsRest, sEncoded));
            EXPECT_EQ(sDecoded, sUnit) << nCodePage << " " << nByte;
            EXPECT_EQ(sEncoded, sByte) << nCodePage << " " << nByte;
        }
    }
}

TEST(CodecTest, WhateverFitsComesBackTheSame)
{
    for (const unsigned nCodePage : kCodePages) {
        const ICodec& rCodec = *gFindCodec(nCodePage);
        int nFitting = 0;
        for (unsigned nUnit = 0; nUnit < 0x10000; ++nUnit) {
            const std::u16string sUnit(1, static_cast<char16_t>(nUnit));
            std::u16string_view sUnitsRest(sUnit);
            std::string sBytes;
            if (!rCodec.EncodeNext(sUnitsRest, sBytes)) {
                EXPECT_EQ(sBytes, "");
                continue;
            }
            ++nFitting;
            std::string_view sBytesRest(sBytes);
            std::u16string sBack;
            ASSERT_TRUE(rCodec.DecodeNext(sBytesRest, sBack)) << nCodePage << " " << nUnit;
            ASSERT_EQ(sBack, sUnit) << nCodePage << " " << nUnit;
            ASSERT_TRUE(sBytesRest.empty()) << nCodePage << " " << nUnit;
        }
        EXPECT_GE(nFitting, 128) << nCodePage;
    }
}

TEST(CodecTest, DecodingAlwaysMovesOnAndNeverTakesAnAsciiByteWithAMisfit)
{
    for (const unsigned nCodePage : kCodePages) {
        const ICodec& rCodec = *gFindCodec(nCodePage);
        for (int nFirst = 0x80; nFirst < 0x100; ++nFirst) {
            for (int nSecond = 0; nSecond < 0x100; ++nSecond) {
                const std::string sBytes = {static_cast<char>(nFirst), static_cast<char>(nSecond)};
                std::string_view sRest(sBytes);
                std::u16string sUnits;
                const bool bValid = rCodec.DecodeNext(sRest, sUnits);
                ASSERT_LT(sRest.size(), sBytes.size()) << nCodePage;
                ASSERT_EQ(bValid, !sUnits.empty()) << nCodePage;
                // The blank and the line ends part texts: a stray lead byte must not eat them.
                if (!bValid && nSecond <= ' ') {
                    ASSERT_EQ(sRest.size(), 1U)
                        << nCodePage << " " << std::hex << nFirst << " " << nSecond;
                }
            }
        }
    }
}

TEST(CodecTest, CountsTheUnitsOfTheFirstCharacter)
{
    struct Case {
        std::u16string sText;
        std::size_t nUnits;
    };
    const Case cases[] = {
        {u"a", 1},
        {u"\U0001F600", 2},
        {std::u16string{0xD800}, 1},
        {std::u16string{0xDC00}, 1},
        {std::u16string{0xD800, u'a'}, 1},
        {std::u16string{0xDC00, 0xD800}, 1},
        {std::u16string{0xDBFF, 0xDFFF}, 2},
        {std::u16string{0xD7FF, 0xDC00}, 1},
        {std::u16string{0xD800, 0xE000}, 1},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gCountFirstUnits(rCase.sText), rCase.nUnits);
    }
}

} // namespace
