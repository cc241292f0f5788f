#include "foundation/NumberFormat.h"
#include "foundation/RandomNumbers.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <string>

// The parser against the rule written down a second time, on whole strings.

namespace
{

constexpr int kRounds = QUORVAWIZ_LONG_RUNS ? 10'000'000 : 100'000;

struct TParsed {
    bool bNumber = false;
    double dResult = 0;
    std::size_t nUsed = 0;
};

bool IsDigit(char c)
{
    return std::string("0123456789").find(c) != std::string::npos;
}

std::string Lower(std::string sText)
{
    for (char& rc : sText) {
        rc = rc >= 'A' && rc <= 'Z' ? static_cast<char>(rc + 32) : rc;
    }
    return sText;
}

/// The suffix at an index: its length, its exponent, its factor.
std::size_t ModelSuffix(const std::string& rsRest, bool bUseSi, int& rnExponent, double& rdFactor)
{
    static const std::map<std::string, int> spice{{"a", -18}, {"f", -15}, {"g", 9},
                                                  {"k", 3},   {"m", -3},  {"n", -9},
                                                  {"p", -12}, {"t", 12},  {"u", -6}};
    static const std::map<std::string, int> si{
        {"E", 18}, {"e", 18}, {"f", -15}, {"F", -15}, {"G", 9},   {"g", 9},   {"k", 3},  {"K", 3},
        {"M", 6},  {"m", -3}, {"N", -9},  {"n", -9},  {"P", 15},  {"p", -12}, {"T", 12}, {"t", 12},
        {"U", -6}, {"u", -6}, {"Y", 24},  {"Z", 21},  {"a", -18}, {"y", -24}, {"z", -21}};
    const std::string sLower = Lower(rsRest);
    if (sLower.starts_with("ft") || sLower.starts_with("mi")) {
        rdFactor = sLower.starts_with("ft") ? 0.305 : 2.54e-5;
        return 2;
    }
    if (sLower.starts_with("meg")) {
        rnExponent = 6;
        return 3;
    }
    if (sLower.starts_with("x") || sLower.starts_with("%")) {
        rnExponent = sLower.starts_with("x") ? 6 : -2;
        return 1;
    }
    const std::map<std::string, int>& rTable = bUseSi ? si : spice;
    const auto found = rTable.find((bUseSi ? rsRest : sLower).substr(0, 1));
    if (found == rTable.end()) {
        return 0;
    }
    rnExponent = found->second;
    return 1;
}

TParsed Model(const std::string& rsText, bool bUseSi)
{
    const auto at = [&rsText](std::size_t n) { return n < rsText.size() ? rsText[n] : '\0'; };
    std::size_t n = rsText.find_first_not_of(" \t\n\v\f\r");
    n = n == std::string::npos ? rsText.size() : n;
    const bool bNegative = at(n) == '-';
    n += at(n) == '-' || at(n) == '+' ? 1 : 0;
    std::string sBefore;
    std::string sBehind;
    for (; IsDigit(at(n)); ++n) {
        sBefore += at(n);
    }
    if (at(n) == '.') {
        for (++n; IsDigit(at(n)); ++n) {
            sBehind += at(n);
        }
    }
    if (sBefore.empty() && sBehind.empty()) {
        return {};
    }
    const std::string sTaken = (sBefore + sBehind).substr(0, 18);
    double dMantissa = static_cast<double>(std::stoull(sTaken));
    long nTotal = static_cast<long>(sBefore.size()) - static_cast<long>(sTaken.size());
    if (at(n) == 'e' || at(n) == 'E') {
        const std::size_t nSign = at(n + 1) == '-' || at(n + 1) == '+' ? 1 : 0;
        std::string sExponent;
        for (std::size_t m = n + 1 + nSign; IsDigit(at(m)); ++m) {
            sExponent += at(m);
        }
        if (!sExponent.empty()) {
            nTotal += std::stol(sExponent) * (at(n + 1) == '-' ? -1 : 1);
            n += 1 + nSign + sExponent.size();
        }
    }
    int nSuffix = 0;
    double dFactor = 1;
    n += ModelSuffix(rsText.substr(n), bUseSi, nSuffix, dFactor);
    nTotal += nSuffix;
    dMantissa *= dFactor;
    const long nMagnitude = std::min(std::labs(nTotal), 511L);
    const double powers[] = {1e1, 1e2, 1e4, 1e8, 1e16, 1e32, 1e64, 1e128, 1e256};
    double dPower = 1;
    for (int nBit = 0; nBit < 9; ++nBit) {
        if ((nMagnitude >> nBit) % 2 == 1) {
            dPower *= powers[nBit];
        }
    }
    double dResult = dMantissa == 0 ? 0 : nTotal < 0 ? dMantissa / dPower : dMantissa * dPower;
    return {true, bNegative ? -dResult : dResult, n};
}

std::string RandomText(CRandomNumbers& rRandom)
{
    static const std::string characters =
        "0123456789012345678901234567890..ee+-EEkKmMegGiIfFtT%xXaunpP  \tzZyY";
    std::string sText;
    for (int nLength = rRandom.Int(12); nLength > 0; --nLength) {
        sText += characters[static_cast<std::size_t>(
            rRandom.Int(static_cast<int>(characters.size()) - 1))];
    }
    return sText;
}

/// A well-formed number of up to 24 digits.
std::string RandomNumber(CRandomNumbers& rRandom)
{
    std::string sText = rRandom.Flag() ? "" : "-";
    for (int nCount = rRandom.Int(12); nCount >= 0; --nCount) {
        sText += static_cast<char>('0' + rRandom.Int(9));
    }
    if (rRandom.Flag()) {
        sText += '.';
        for (int nCount = rRandom.Int(12); nCount > 0; --nCount) {
            sText += static_cast<char>('0' + rRandom.Int(9));
        }
    }
    if (rRandom.Flag()) {
        sText += 'e' + std::to_string(rRandom.Int(600) - 300);
    }
    static const char* const suffixes[] = {"",  "k", "M", "meg", "mil", "ft",
                                           "%", "E", "u", "p",   "x"};
    return sText + suffixes[rRandom.Int(10)];
}

TEST(ParseModel, RandomTextsAgree)
{
    CRandomNumbers random(1001);
    for (int nRound = 0; nRound < kRounds; ++nRound) {
        const std::string sText = random.Flag() ? RandomText(random) : RandomNumber(random);
        const bool bUseSi = random.Flag();
        const TParsed expected = Model(sText, bUseSi);
        double dResult = 99;
        const char* pEnd = nullptr;
        const std::string sMessage = gParseEngineering(sText.c_str(), dResult, &pEnd, bUseSi);
        ASSERT_EQ(sMessage, expected.bNumber ? "" : "Not a number") << sText;
        ASSERT_EQ(dResult, expected.dResult) << sText;
        ASSERT_EQ(static_cast<std::size_t>(pEnd - sText.c_str()), expected.nUsed) << sText;
        const std::u16string sWide(sText.begin(), sText.end());
        double dWide = 99;
        const char16_t* pWideEnd = nullptr;
        ASSERT_EQ(gParseEngineering(sWide.c_str(), dWide, &pWideEnd, bUseSi), sMessage) << sText;
        ASSERT_EQ(dWide, dResult) << sText;
        ASSERT_EQ(pWideEnd - sWide.c_str(), pEnd - sText.c_str()) << sText;
    }
}

TEST(ParseModel, PlainNumbersAreThoseOfTheStandardLibrary)
{
    CRandomNumbers random(1002);
    for (int nRound = 0; nRound < kRounds; ++nRound) {
        const double dValue = random.Written();
        char text[64] = {};
        const auto written = std::to_chars(text, text + sizeof(text) - 1, dValue,
                                           std::chars_format::scientific, random.Int(17));
        double dResult = 0;
        ASSERT_EQ(gParseEngineering(text, dResult, nullptr, false), "");
        double dStandard = 0;
        std::from_chars(text, written.ptr, dStandard);
        // Close to the end of the range the power leaves it before the number does.
        if (std::abs(dStandard) > 1e-290) {
            ASSERT_NEAR(dResult, dStandard, std::abs(dStandard) * 2e-15) << text;
        }
    }
}

} // namespace
