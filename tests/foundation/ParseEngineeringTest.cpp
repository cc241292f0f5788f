#include "foundation/FormatScopes.h"
#include "foundation/NumberFormat.h"
#include "foundation/StringU.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace
{

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr bool kSpice = false;
constexpr bool kSi = true;

struct Case {
    const char* pText;
    bool bUseSi;
    double dResult;
    int nUsed; ///< characters before the end argument
    const char* pMessage = "";
};

/// Checks one text in both forms.
void ExpectCase(const Case& rCase)
{
    double dResult = 99;
    const char* pEnd = nullptr;
    EXPECT_EQ(gParseEngineering(rCase.pText, dResult, &pEnd, rCase.bUseSi), rCase.pMessage)
        << rCase.pText;
    EXPECT_DOUBLE_EQ(dResult, rCase.dResult) << rCase.pText;
    EXPECT_EQ(pEnd - rCase.pText, rCase.nUsed) << rCase.pText;

    const std::u16string sWide = CStringU(rCase.pText).ToWide();
    double dWide = 99;
    const char16_t* pWideEnd = nullptr;
    EXPECT_EQ(gParseEngineering(sWide.c_str(), dWide, &pWideEnd, rCase.bUseSi), rCase.pMessage)
        << rCase.pText;
    EXPECT_EQ(dWide, dResult) << rCase.pText;
    EXPECT_EQ(pWideEnd - sWide.c_str(), rCase.nUsed) << rCase.pText;

    double dOther = 99;
    EXPECT_EQ(gParseEngineering(rCase.pText, dOther, nullptr, rCase.bUseSi), rCase.pMessage);
    EXPECT_EQ(dOther, dResult) << rCase.pText;
}

TEST(ParseEngineering, NumbersWithoutSuffix)
{
    for (const Case& rCase : {
             Case{"0", kSpice, 0, 1},
             Case{"1", kSpice, 1, 1},
             Case{"+1", kSpice, 1, 2},
             Case{"-1", kSpice, -1, 2},
             Case{" \t\n\v\f\r1", kSpice, 1, 7},
             Case{"1.5", kSpice, 1.5, 3},
             Case{"1.", kSpice, 1, 2},
             Case{".5", kSpice, 0.5, 2},
             Case{"1..5", kSpice, 1, 2},
             Case{"1.2.3", kSpice, 1.2, 3},
             Case{"1e3", kSpice, 1000, 3},
             Case{"1E+3", kSpice, 1000, 4},
             Case{"1e-3", kSpice, 0.001, 4},
             Case{"1e003", kSpice, 1000, 5},
             Case{"1.5e1.5", kSpice, 15, 5},
             Case{"1 k", kSpice, 1, 1},
             Case{"12volts", kSpice, 12, 2},
             Case{"1,5", kSpice, 1, 1},
             Case{"0x10", kSpice, 0, 2}, // the x of mega
             Case{"0y10", kSpice, 0, 1},
             Case{"-0", kSpice, -0.0, 2},
         }) {
        ExpectCase(rCase);
    }
}

TEST(ParseEngineering, WhatIsNoNumber)
{
    for (const char* pText : {"", " ", "+", "-", ".", "+.", "-.e5", "e5", "k", "%", " x", "--1",
                              "+-1", "inf", "nan", "\xC3\xA9"}) {
        for (const bool bUseSi : {kSpice, kSi}) {
            ExpectCase({pText, bUseSi, 0, 0, "Not a number"});
        }
    }
}

TEST(ParseEngineering, ANullTextIsNoNumber)
{
    double dResult = 99;
    const char* pEnd = "";
    EXPECT_EQ(gParseEngineering(static_cast<const char*>(nullptr), dResult, &pEnd, kSpice),
              "Not a number");
    EXPECT_EQ(dResult, 0);
    EXPECT_EQ(pEnd, nullptr);
}

TEST(ParseEngineering, WorkedEdgeCases)
{
    for (const Case& rCase : {
             Case{"1e", kSi, 1e18, 2},      Case{"1E", kSi, 1e18, 2},
             Case{"1e", kSpice, 1, 1},      Case{"1e+", kSi, 1e18, 2},
             Case{"1e+", kSpice, 1, 1},     Case{"1e-x", kSpice, 1, 1},
             Case{"1ex", kSi, 1e18, 2},     Case{"1meg", kSpice, 1e6, 4},
             Case{"1MEG", kSpice, 1e6, 4},  Case{"1Meg", kSpice, 1e6, 4},
             Case{"1mEg", kSi, 1e6, 4},     Case{"1mil", kSpice, 2.54e-5, 3},
             Case{"1MIL", kSi, 2.54e-5, 3}, Case{"2ft", kSpice, 0.61, 3},
             Case{"2Ft", kSi, 0.61, 3},     Case{"10%", kSpice, 0.1, 3},
             Case{"10%", kSi, 0.1, 3},      Case{"1e3k", kSpice, 1e6, 4},
             Case{"1e3e", kSi, 1e21, 4},    Case{"1kk", kSpice, 1000, 2},
             Case{"1mm", kSpice, 1e-3, 2},  Case{"1me", kSpice, 1e-3, 2},
             Case{"1me", kSi, 1e-3, 2},     Case{"1m\xC3\xA9g", kSpice, 1e-3, 2},
         }) {
        ExpectCase(rCase);
    }
}

TEST(ParseEngineering, EveryLetterInBothStyles)
{
    struct Row {
        char chLetter;
        int nSpice; // 0: no suffix
        int nSi;
    };
    constexpr Row rows[] = {
        {'A', -18, 0},   {'B', 0, 0},     {'C', 0, 0},   {'D', 0, 0},   {'E', 0, 18},
        {'F', -15, -15}, {'G', 9, 9},     {'H', 0, 0},   {'I', 0, 0},   {'J', 0, 0},
        {'K', 3, 3},     {'L', 0, 0},     {'M', -3, 6},  {'N', -9, -9}, {'O', 0, 0},
        {'P', -12, 15},  {'Q', 0, 0},     {'R', 0, 0},   {'S', 0, 0},   {'T', 12, 12},
        {'U', -6, -6},   {'V', 0, 0},     {'W', 0, 0},   {'X', 6, 6},   {'Y', 0, 24},
        {'Z', 0, 21},    {'a', -18, -18}, {'b', 0, 0},   {'c', 0, 0},   {'d', 0, 0},
        {'e', 0, 18},    {'f', -15, -15}, {'g', 9, 9},   {'h', 0, 0},   {'i', 0, 0},
        {'j', 0, 0},     {'k', 3, 3},     {'l', 0, 0},   {'m', -3, -3}, {'n', -9, -9},
        {'o', 0, 0},     {'p', -12, -12}, {'q', 0, 0},   {'r', 0, 0},   {'s', 0, 0},
        {'t', 12, 12},   {'u', -6, -6},   {'v', 0, 0},   {'w', 0, 0},   {'x', 6, 6},
        {'y', 0, -24},   {'z', 0, -21},   {'%', -2, -2},
    };
    for (const Row& rRow : rows) {
        for (const bool bUseSi : {kSpice, kSi}) {
            const int nExponent = bUseSi ? rRow.nSi : rRow.nSpice;
            const std::string sText = std::string("3") + rRow.chLetter;
            ExpectCase(
                {sText.c_str(), bUseSi, 3 * std::pow(10.0, nExponent), nExponent != 0 ? 2 : 1});
        }
    }
}

TEST(ParseEngineering, NoOtherCharacterIsASuffix)
{
    for (int nUnit = 1; nUnit < 0x10000; ++nUnit) {
        const auto chUnit = static_cast<char16_t>(nUnit);
        const bool bAsciiLetter = (nUnit >= 'A' && nUnit <= 'Z') || (nUnit >= 'a' && nUnit <= 'z');
        if (bAsciiLetter || chUnit == u'%' || chUnit == u'.' ||
            (chUnit >= u'0' && chUnit <= u'9')) {
            continue;
        }
        const std::u16string sText{u'7', chUnit};
        const char16_t* pEnd = nullptr;
        double dResult = 0;
        for (const bool bUseSi : {kSpice, kSi}) {
            ASSERT_EQ(gParseEngineering(sText.c_str(), dResult, &pEnd, bUseSi), "");
            ASSERT_EQ(dResult, 7) << nUnit;
            ASSERT_EQ(pEnd - sText.c_str(), 1) << nUnit;
        }
    }
}

TEST(ParseEngineering, EighteenDigitsCount)
{
    const std::string zeros18(18, '0');
    struct Row {
        const char* pName;
        std::string sText;
        double dResult;
    };
    const Row rows[] = {
        {"18 digits", "123456789012345678", 123456789012345678.0},
        {"the rest moves the point", "123456789012345678999", 123456789012345678e3},
        {"the rest behind the point doesn't count", "1.23456789012345678999", 1.23456789012345678},
        {"the point among the rest", "123456789012345678999.999", 123456789012345678e3},
        {"leading zeros are digits", zeros18 + "5", 0},
        {"17 leading zeros leave one", zeros18.substr(1) + "57", 50},
        {"zeros behind the point, too", "0." + zeros18 + "5", 0},
        {"an exponent takes the rest back", "1" + std::string(400, '0') + "e-400", 1},
    };
    for (const Row& rRow : rows) {
        double dResult = 99;
        const char* pEnd = nullptr;
        EXPECT_EQ(gParseEngineering(rRow.sText.c_str(), dResult, &pEnd, kSpice), "") << rRow.pName;
        EXPECT_DOUBLE_EQ(dResult, rRow.dResult) << rRow.pName;
        EXPECT_EQ(*pEnd, '\0') << rRow.pName;
    }
}

TEST(ParseEngineering, AnOverflowIsNoError)
{
    struct Row {
        std::string sText;
        double dResult;
        int nError;
    };
    const std::string manyNines(1000, '9');
    const Row rows[] = {
        {"1e999", kInfinity, ERANGE},
        {"-1e999", -kInfinity, ERANGE},
        {"1e-999", 0, ERANGE},
        {"-1e-999", -0.0, ERANGE},
        {"1e512", kInfinity, ERANGE},
        {"1e511", kInfinity, 0},
        {"1e-511", 0, 0},
        {"1e-512", 0, ERANGE},
        {"1e511%", kInfinity, 0},
        {"1e513%", kInfinity, 0},
        {"1e514%", kInfinity, ERANGE},
        {"1e308", 1e308, 0},
        {"1e309", kInfinity, 0},
        {"1e-308", 1e-308, 0},
        {"1e-309", 0, 0}, // the power is infinite before the number is too small
        {"0e999", 0, ERANGE},
        {"0e400", 0, 0},
        {"-0e400", -0.0, 0},
        {"1e" + manyNines, kInfinity, ERANGE},
        {"1e-" + manyNines, 0, ERANGE},
        {manyNines, kInfinity, ERANGE},
        {"1e99999999999999999999k", kInfinity, ERANGE},
        {"1e9223372036854775807", kInfinity, ERANGE},
        {"1e-9223372036854775808", 0, ERANGE},
        {"1e" + std::string(50, '0') + "3", 1000, 0},
    };
    for (const Row& rRow : rows) {
        errno = 0;
        double dResult = 99;
        const char* pEnd = nullptr;
        EXPECT_EQ(gParseEngineering(rRow.sText.c_str(), dResult, &pEnd, kSpice), "") << rRow.sText;
        EXPECT_EQ(errno, rRow.nError) << rRow.sText;
        EXPECT_DOUBLE_EQ(dResult, rRow.dResult) << rRow.sText;
        EXPECT_EQ(std::signbit(dResult), std::signbit(rRow.dResult)) << rRow.sText;
        EXPECT_EQ(*pEnd, '\0') << rRow.sText;
    }
}

TEST(ParseEngineering, TheErrorNumberStaysOtherwise)
{
    errno = EDOM;
    double dResult = 0;
    EXPECT_EQ(gParseEngineering("1e5", dResult, nullptr, kSpice), "");
    EXPECT_EQ(gParseEngineering("x", dResult, nullptr, kSpice), "Not a number");
    EXPECT_EQ(errno, EDOM);
}

TEST(ParseEngineeringText, TheSettingsDecideTheStyle)
{
    const CFormatSettingsScope scope;
    const auto parse = [](const CStringU& rText, boost::tribool bUseSi) {
        double dResult = 99;
        EXPECT_EQ(gParseEngineeringText(rText, dResult, bUseSi), CStringU());
        return dResult;
    };
    EXPECT_EQ(parse("1M", boost::indeterminate), 1e-3);
    EXPECT_EQ(parse("1M", true), 1e6);
    gGetEngineeringFormatSettings().SetDefaultEngineeringFormatUseSiSuffixInsteadOfSpice(true);
    EXPECT_EQ(parse("1M", boost::indeterminate), 1e6);
    EXPECT_EQ(parse("1M", false), 1e-3);
    EXPECT_EQ(parse(CStringU(u"2k\u00E9"), false), 2000);
}

TEST(ParseEngineeringText, TheMessageIsAText)
{
    double dResult = 99;
    EXPECT_EQ(gParseEngineeringText("volts", dResult, false), "Not a number");
    EXPECT_EQ(dResult, 0);
    EXPECT_EQ(gParseEngineeringText(CStringU(u"1\u00B5"), dResult, false), "");
    EXPECT_EQ(dResult, 1);
}

} // namespace
