#include "platform/base/CodePage.h"

#include "CodePageScope.h"
#include "platform/base/Exceptions.h"
#include "platform/base/Utf8Text.h"

#include <gtest/gtest.h>
#include <unicode/uchar.h>

#include <optional>
#include <string>
#include <string_view>

namespace
{

// Windows-1252 from 0x80 to 0x9F; the five undefined bytes are control characters. From 0xA0 on it
// is Latin-1.
constexpr char16_t kHigh1252[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char16_t Unit1252(int nByte)
{
    return nByte >= 0x80 && nByte < 0xA0 ? kHigh1252[nByte - 0x80] : static_cast<char16_t>(nByte);
}

TEST(CodePageTest, TheSystemStartsInUtf8AndCanBeSet)
{
    EXPECT_EQ(gGetSystemCodePage(), 65001U);
    gSetSystemCodePage(1252);
    EXPECT_EQ(gGetSystemCodePage(), 1252U);
    gSetSystemCodePage(kCodePageUtf8);
    EXPECT_EQ(gGetSystemCodePage(), 65001U);
}

TEST(CodePageTest, AnUnknownCodePageIsRefusedEverywhere)
{
    for (const unsigned nCodePage :
         {0U, 1U, 37U, 1200U, 1201U, 12000U, 65000U, 99999U, 4294967295U}) {
        EXPECT_FALSE(gIsCodePageKnown(nCodePage)) << nCodePage;
        EXPECT_THROW(gSetSystemCodePage(nCodePage), CInvalidArgException) << nCodePage;
        EXPECT_THROW(static_cast<void>(gMultiByteToWide("a", nCodePage)), CInvalidArgException);
        EXPECT_THROW(static_cast<void>(gWideToMultiByte(u"a", nCodePage)), CInvalidArgException);
        EXPECT_THROW(static_cast<void>(gMultiByteToWide("", nCodePage)), CInvalidArgException);
    }
    EXPECT_EQ(gGetSystemCodePage(), kCodePageUtf8);
}

TEST(CodePageTest, TheUsualCodePagesAreKnown)
{
    for (const unsigned nCodePage : {437U, 850U, 874U, 932U, 936U, 949U, 950U, 1250U, 1251U, 1252U,
                                     1253U, 1254U, 1255U, 1256U, 1257U, 1258U, 54936U, 65001U}) {
        EXPECT_TRUE(gIsCodePageKnown(nCodePage)) << nCodePage;
    }
}

TEST(CodePageTest, EveryByteOfWindows1252GoesBothWays)
{
    for (int nByte = 0; nByte < 256; ++nByte) {
        const std::string sByte(1, static_cast<char>(nByte));
        const std::u16string sUnit(1, Unit1252(nByte));
        bool bReplaced = true;
        EXPECT_EQ(gMultiByteToWide(sByte, 1252), sUnit) << nByte;
        EXPECT_EQ(gWideToMultiByte(sUnit, 1252, '?', &bReplaced), sByte) << nByte;
        EXPECT_FALSE(bReplaced) << nByte;
    }
}

TEST(CodePageTest, EveryOtherUnitIsReplacedInWindows1252)
{
    std::u16string sFitting;
    for (int nByte = 0; nByte < 256; ++nByte) {
        sFitting += Unit1252(nByte);
    }
    for (unsigned nUnit = 0; nUnit < 0x10000; ++nUnit) {
        const auto chUnit = static_cast<char16_t>(nUnit);
        const bool bFits = sFitting.find(chUnit) != std::u16string::npos;
        bool bReplaced = bFits;
        const std::string sBytes = gWideToMultiByte({&chUnit, 1}, 1252, '!', &bReplaced);
        ASSERT_EQ(bReplaced, !bFits) << std::hex << nUnit;
        ASSERT_EQ(sBytes.size(), 1U);
        ASSERT_TRUE(bFits || sBytes == "!") << std::hex << nUnit;
    }
}

TEST(CodePageTest, DecodesTheseTexts)
{
    struct Case {
        unsigned nCodePage;
        std::string_view sBytes;
        std::u16string_view sUnits;
    };
    using namespace std::string_view_literals;
    const Case cases[] = {
        {65001, "", u""},
        {65001, "plain text longer than a word", u"plain text longer than a word"},
        {65001, "a\0b"sv, u"a\0b"sv},
        {65001, "a\xC3\xA9z \xE2\x82\xAC", u"aéz €"},
        {65001, "\xF0\x9D\x84\x9E", u"\U0001D11E"},
        {1251, "\xCF\xF0", u"Пр"},
        {1252, "\x80 50\xB5", u"€ 50µ"},
        {1253, "\xD9", u"Ω"},
        {1253, "a\xD2", u"a\uFFFD"},
        {437, "\x1A\x1C\x7F\x80", u"\x1A\x1C\x7F\u00C7"},
        {932, "\x82\xA0 \x83\x5C \xB1\x5C\x7E", u"\u3042 \u30BD \uFF71\\~"},
        {932, "a\x82", u"a\uFFFD"},
        {932, "\x82 b", u"\uFFFD b"},
        {936, "\xB0\xA1", u"\u554A"},
        {950, "\xA4\x40", u"\u4E00"},
        {54936, "\x94\x39\xDA\x33", u"\U0001F4A9"},
        {20127, "a\xC3z", u"a\uFFFDz"},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gMultiByteToWide(rCase.sBytes, rCase.nCodePage), rCase.sUnits)
            << rCase.nCodePage << " " << testing::PrintToString(std::string(rCase.sBytes));
    }
}

TEST(CodePageTest, EncodesTheseTextsWithoutBestFit)
{
    struct Case {
        unsigned nCodePage;
        std::u16string sUnits;
        std::string sBytes;
        bool bReplaced;
    };
    const Case cases[] = {
        {65001, u"", "", false},
        {65001, u"plain text longer than a word", "plain text longer than a word", false},
        {65001, std::u16string(u"a\0b", 3), std::string("a\0b", 3), false},
        {65001, u"aé€\U0001D11Ez", "a\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9Ez", false},
        {65001, {u'a', 0xD834, u'b'}, "a?b", true},
        {65001, {0xDD1E, 0xD834}, "??", true},
        {1252, u"aé€z", "a\xE9\x80z", false},
        {1252, u"Ωa", "?a", true},
        {1252, u"\u0100\uFF21\u2032\u2212\u221E", "?????", true},
        {1252, u"x\U0001F600y", "x??y", true},
        {1252, {0xD83D}, "?", true},
        {1251, u"Пр", "\xCF\xF0", false},
        {932, u"\u3042\\\u30BD", "\x82\xA0\\\x83\x5C", false},
        {932, u"\u3042é\U0001F600", "\x82\xA0???", true},
        {932, {0xD83D, 0x3042}, "?\x82\xA0", true},
        {932, u"a\u200Db\u00ADc", "a?b?c", true},
        {54936, u"\U0001F4A9", "\x94\x39\xDA\x33", false},
        {437, u"\x1A\x1C\x7FÇ", "\x1A\x1C\x7F\x80", false},
    };
    for (const Case& rCase : cases) {
        bool bReplaced = !rCase.bReplaced;
        EXPECT_EQ(gWideToMultiByte(rCase.sUnits, rCase.nCodePage, '?', &bReplaced), rCase.sBytes)
            << rCase.nCodePage << " " << testing::PrintToString(rCase.sUnits);
        EXPECT_EQ(bReplaced, rCase.bReplaced) << testing::PrintToString(rCase.sUnits);
        EXPECT_EQ(gWideToMultiByte(rCase.sUnits, rCase.nCodePage), rCase.sBytes);
    }
}

TEST(CodePageTest, ToUtf8ReadsWhatIsNotValidAsWindows1252)
{
    struct Case {
        unsigned nCodePage;
        std::string_view sText;
        std::string_view sUtf8;
    };
    const Case cases[] = {
        {65001, "", ""},
        {65001, "plain", "plain"},
        {65001, "a\xC3\xA9", "a\xC3\xA9"},
        {65001, "a\xE9", "a\xC3\xA9"},
        {65001, "\x80 \x81", "\xE2\x82\xAC \xC2\x81"},
        {65001, "\xE2\x82z", "\xC3\xA2\xE2\x80\x9Az"},
        {65001, "\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xE2\x82\xAC"},
        {65001, "\xF0\x9D\x84\x9E", "\xF0\x9D\x84\x9E"},
        {1252, "a\xE9\x80\x9D", "a\xC3\xA9\xE2\x82\xAC\xC2\x9D"},
        {1253, "\xD9\xD2", "\xCE\xA9\xC3\x92"},
        {932, "\x82\xA0\x82", "\xE3\x81\x82\xE2\x80\x9A"},
    };
    for (const Case& rCase : cases) {
        const CCodePageScope scope(rCase.nCodePage);
        EXPECT_EQ(gToUtf8(CString(rCase.sText)), rCase.sUtf8)
            << rCase.nCodePage << " " << testing::PrintToString(std::string(rCase.sText));
    }
}

TEST(CodePageTest, ToUtf8OfEveryByteInEitherCodePageIsItsWindows1252Character)
{
    for (const unsigned nCodePage : {kCodePageUtf8, kCodePageWindows1252}) {
        const CCodePageScope scope(nCodePage);
        for (int nByte = 0; nByte < 256; ++nByte) {
            const char16_t chUnit = Unit1252(nByte);
            EXPECT_EQ(gToUtf8(CString(static_cast<char>(nByte))),
                      gWideToMultiByte({&chUnit, 1}, kCodePageUtf8))
                << nCodePage << " " << nByte;
        }
    }
}

TEST(CodePageTest, FromUtf8RefusesWhatDoesNotFit)
{
    struct Case {
        unsigned nCodePage;
        std::string_view sUtf8;
        std::optional<std::string> sText;
    };
    const Case cases[] = {
        {65001, "", ""},
        {65001, "plain", "plain"},
        {65001, "a\xC3\xA9\xF0\x9D\x84\x9E", "a\xC3\xA9\xF0\x9D\x84\x9E"},
        {65001, "a\xE9", std::nullopt},
        {65001, "\xED\xA0\x80", std::nullopt},
        {65001, "\xEF\xBF\xBD", "\xEF\xBF\xBD"},
        {1252, "plain", "plain"},
        {1252, "a\xC3\xA9\xE2\x82\xAC", "a\xE9\x80"},
        {1252, "\xCE\xA9", std::nullopt},
        {1252, "\xEF\xBF\xBD", std::nullopt},
        {1252, "a\xC3", std::nullopt},
        {1253, "\xCE\xA9", "\xD9"},
        {932, "\xE3\x81\x82", "\x82\xA0"},
    };
    for (const Case& rCase : cases) {
        const CCodePageScope scope(rCase.nCodePage);
        const std::optional<CString> sText = gFromUtf8(rCase.sUtf8);
        ASSERT_EQ(sText.has_value(), rCase.sText.has_value())
            << rCase.nCodePage << " " << testing::PrintToString(std::string(rCase.sUtf8));
        if (sText) {
            EXPECT_EQ(*sText, *rCase.sText);
        }
    }
}

TEST(CodePageTest, CaseOfEveryUnitIsTheSimpleMapping)
{
    for (unsigned nUnit = 0; nUnit < 0x10000; ++nUnit) {
        const auto chUnit = static_cast<char16_t>(nUnit);
        const auto nChar = static_cast<UChar32>(nUnit);
        ASSERT_EQ(static_cast<UChar32>(gToLowerWide(chUnit)), u_tolower(nChar))
            << std::hex << nUnit;
        ASSERT_EQ(static_cast<UChar32>(gToUpperWide(chUnit)), u_toupper(nChar))
            << std::hex << nUnit;
    }
}

TEST(CodePageTest, CaseOfWellKnownLetters)
{
    struct Case {
        char16_t chUpper;
        char16_t chLower;
    };
    const Case cases[] = {{u'A', u'a'}, {u'Z', u'z'}, {u'É', u'é'},
                          {u'Ω', u'ω'}, {u'П', u'п'}, {0x0178, 0x00FF}};
    for (const Case& rCase : cases) {
        EXPECT_EQ(gToLowerWide(rCase.chUpper), rCase.chLower);
        EXPECT_EQ(gToUpperWide(rCase.chLower), rCase.chUpper);
    }
    for (const char16_t chSame : {u'[', u'0', u'\xDF', u'\xD7', u'\xD800', u'\xDFFF'}) {
        EXPECT_EQ(gToLowerWide(chSame), chSame);
        EXPECT_EQ(gToUpperWide(chSame), chSame);
    }
}

} // namespace
