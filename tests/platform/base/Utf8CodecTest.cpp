#include "platform/base/Utf8Codec.h"

#include "platform/base/CodePage.h"

#include <gtest/gtest.h>
#include <unicode/ucnv.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace
{

/// The other opinion: ICU's own UTF-8 converter, which puts one U+FFFD for each ill-formed part.
class CIcuUtf8
{
public:
    CIcuUtf8()
    {
        UErrorCode error = U_ZERO_ERROR;
        mpConverter.reset(ucnv_open("UTF-8", &error));
        EXPECT_TRUE(U_SUCCESS(error));
    }

    std::u16string Decode(std::string_view sBytes) const
    {
        std::u16string sOut(sBytes.size() + 1, u'\0');
        UErrorCode error = U_ZERO_ERROR;
        const int nUnits =
            ucnv_toUChars(mpConverter.get(), sOut.data(), static_cast<int>(sOut.size()),
                          sBytes.data(), static_cast<int>(sBytes.size()), &error);
        EXPECT_TRUE(U_SUCCESS(error));
        sOut.resize(static_cast<std::size_t>(nUnits));
        return sOut;
    }

    std::string Encode(std::u16string_view sUnits) const
    {
        std::string sOut(sUnits.size() * 3 + 1, '\0');
        UErrorCode error = U_ZERO_ERROR;
        const int nBytes =
            ucnv_fromUChars(mpConverter.get(), sOut.data(), static_cast<int>(sOut.size()),
                            sUnits.data(), static_cast<int>(sUnits.size()), &error);
        EXPECT_TRUE(U_SUCCESS(error));
        sOut.resize(static_cast<std::size_t>(nBytes));
        return sOut;
    }

private:
    struct TClose {
        void operator()(UConverter* pConverter) const { ucnv_close(pConverter); }
    };
    std::unique_ptr<UConverter, TClose> mpConverter;
};

TEST(Utf8CodecTest, EveryCharacterGoesBothWaysAsInIcu)
{
    const CIcuUtf8 icu;
    const CUtf8Codec codec;
    for (unsigned nChar = 0; nChar <= 0x10FFFF; ++nChar) {
        if (nChar >= 0xD800 && nChar <= 0xDFFF) {
            continue;
        }
        std::u16string sUnits;
        if (nChar < 0x10000) {
            sUnits = static_cast<char16_t>(nChar);
        } else {
            sUnits = {static_cast<char16_t>(0xD800 + ((nChar - 0x10000) >> 10U)),
                      static_cast<char16_t>(0xDC00 + ((nChar - 0x10000) & 0x3FFU))};
        }
        std::string sBytes;
        std::u16string_view sRest(sUnits);
        ASSERT_TRUE(codec.EncodeNext(sRest, sBytes)) << std::hex << nChar;
        ASSERT_TRUE(sRest.empty());
        ASSERT_EQ(sBytes, icu.Encode(sUnits)) << std::hex << nChar;

        std::u16string sBack;
        std::string_view sBytesRest(sBytes);
        ASSERT_TRUE(codec.DecodeNext(sBytesRest, sBack)) << std::hex << nChar;
        ASSERT_TRUE(sBytesRest.empty());
        ASSERT_EQ(sBack, sUnits) << std::hex << nChar;
    }
}

TEST(Utf8CodecTest, NoSurrogateFitsAlone)
{
    const CUtf8Codec codec;
    for (unsigned nUnit = 0xD800; nUnit <= 0xDFFF; ++nUnit) {
        const char16_t units[] = {static_cast<char16_t>(nUnit), u'a'};
        std::u16string_view sRest(units, 2);
        std::string sBytes;
        EXPECT_FALSE(codec.EncodeNext(sRest, sBytes)) << std::hex << nUnit;
        EXPECT_EQ(sRest, u"a");
        EXPECT_EQ(sBytes, "");
    }
}

TEST(Utf8CodecTest, IllFormedPartsAreMaximal)
{
    struct Case {
        std::string_view sBytes;
        std::u16string_view sUnits;
    };
    const Case cases[] = {
        {"\x80", u"\uFFFD"},
        {"\xBF\xBF", u"\uFFFD\uFFFD"},
        {"\xC3", u"\uFFFD"},
        {"\xC3(", u"\uFFFD("},
        {"\xC0\x80", u"\uFFFD\uFFFD"},
        {"\xC1\xBF", u"\uFFFD\uFFFD"},
        {"\xE2\x82", u"\uFFFD"},
        {"\xE2\x82x", u"\uFFFDx"},
        {"\xE2\x82\xC3\xA9", u"\uFFFD\u00E9"},
        {"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD"},
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
        {"\xED\x9F\xBF", u"\uD7FF"},
        {"\xF0\x9F\x98", u"\uFFFD"},
        {"\xF0\x9F\x98\x80", u"\U0001F600"},
        {"\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF5\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF8\x88\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xFF", u"\uFFFD"},
        {"a\xF1\x80\x80\xE1\x80\xC2"
         "b\x80"
         "c",
         u"a\uFFFD\uFFFD\uFFFDb\uFFFDc"},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gMultiByteToWide(rCase.sBytes, kCodePageUtf8), rCase.sUnits)
            << testing::PrintToString(std::string(rCase.sBytes));
    }
}

TEST(Utf8CodecTest, EveryTextOfTwoBytesDecodesAsInIcu)
{
    const CIcuUtf8 icu;
    std::string sBytes(2, '\0');
    for (int nFirst = 0; nFirst < 256; ++nFirst) {
        for (int nSecond = 0; nSecond < 256; ++nSecond) {
            sBytes[0] = static_cast<char>(nFirst);
            sBytes[1] = static_cast<char>(nSecond);
            ASSERT_EQ(gMultiByteToWide(sBytes, kCodePageUtf8), icu.Decode(sBytes))
                << std::hex << nFirst << " " << nSecond;
        }
    }
}

TEST(Utf8CodecTest, EveryTextOfFourBoundaryBytesDecodesAsInIcu)
{
    const CIcuUtf8 icu;
    const std::vector<unsigned> bytes = {0x00, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0,
                                         0xBF, 0xC1, 0xC2, 0xDF, 0xE0, 0xE1, 0xEC, 0xED,
                                         0xEE, 0xF0, 0xF1, 0xF4, 0xF5, 0xFF};
    std::string sBytes(4, '\0');
    for (const unsigned n0 : bytes) {
        for (const unsigned n1 : bytes) {
            for (const unsigned n2 : bytes) {
                for (const unsigned n3 : bytes) {
                    sBytes[0] = static_cast<char>(n0);
                    sBytes[1] = static_cast<char>(n1);
                    sBytes[2] = static_cast<char>(n2);
                    sBytes[3] = static_cast<char>(n3);
                    ASSERT_EQ(gMultiByteToWide(sBytes, kCodePageUtf8), icu.Decode(sBytes))
                        << testing::PrintToString(sBytes);
                }
            }
        }
    }
}

} // namespace
