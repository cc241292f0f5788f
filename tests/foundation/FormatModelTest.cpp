#include "foundation/FormatScopes.h"
#include "foundation/NumberFormat.h"
#include "foundation/RandomNumbers.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

// The formatter against the rule written down a second time, slowly: whole texts, one step after
// the other, the digits from printf.

namespace
{

constexpr int kRounds = QUORVAWIZ_LONG_RUNS ? 10'000'000 : 100'000;

struct TCall {
    double dValue;
    int nDigits;
    bool bSignificant;
    bool bPadded;
    bool bRemoveTrailing;
    int nScale;
    bool bRemoveExponents;
};

std::string Print(const char* pFormat, int nNumber)
{
    char text[32];
    std::snprintf(text, sizeof(text), pFormat, nNumber);
    return text;
}

std::string SuffixOf(int nExponent, int nScale)
{
    static const char* const texts[3] = {"yzafpnum kMGTPEZY", "  afpnum kXGT    ",
                                         "  afpnum k?GT    "};
    if (nScale > 2 || nExponent < -24 || nExponent > 24) {
        return "";
    }
    const int nRow = (nExponent + 24) / 3;
    const char chSuffix = texts[nScale][nRow];
    if (chSuffix == '?') {
        return "MEG";
    }
    return chSuffix == ' ' && nExponent != 0 ? "" : std::string(1, chSuffix);
}

std::string Model(const TCall& rCall)
{
    int D = rCall.bSignificant ? std::max(rCall.nDigits, 3) : rCall.nDigits + 3;
    const int W = D + 9;
    std::string sPrinted(static_cast<std::size_t>(D) + 20, '\0');
    std::snprintf(sPrinted.data(), sPrinted.size(), "%.*e", D - 1, rCall.dValue);
    const bool bNegative = sPrinted[0] == '-';
    const std::size_t nE = sPrinted.find('e');
    int E = std::atoi(sPrinted.c_str() + nE + 1);
    std::string sDigits;
    for (std::size_t n = 0; n < nE; ++n) {
        if (sPrinted[n] >= '0' && sPrinted[n] <= '9') {
            sDigits += sPrinted[n];
        }
    }
    int N = ((E % 3) + 3) % 3 + 1;
    if (rCall.dValue == 0) {
        E = 0;
        N = 1;
        D = rCall.nDigits + (rCall.bSignificant ? 0 : 1);
    } else if (!rCall.bSignificant && N < 3) {
        D -= 3 - N;
        if (sDigits[static_cast<std::size_t>(D)] >= '5') {
            int n = D - 1;
            for (; n >= 0 && sDigits[static_cast<std::size_t>(n)] == '9'; --n) {
                sDigits[static_cast<std::size_t>(n)] = '0';
            }
            if (n >= 0) {
                ++sDigits[static_cast<std::size_t>(n)];
            } else {
                sDigits[0] = '1';
                sDigits[static_cast<std::size_t>(D)] = '0';
                ++N;
                ++E;
                ++D;
            }
        }
    }
    sDigits = sDigits.substr(0, static_cast<std::size_t>(D));
    if (rCall.nScale == 3) {
        N = 1;
    }
    const std::string sInteger = sDigits.substr(0, static_cast<std::size_t>(N));
    std::string sFraction = sDigits.substr(static_cast<std::size_t>(N));
    std::string sPoint = ".";
    const int nThousands = E >= 0 ? E / 3 * 3 : -((-E + 2) / 3 * 3);
    std::string sSuffix = SuffixOf(nThousands, rCall.nScale);
    if (sSuffix.empty()) {
        if (rCall.nScale != 3) {
            E = nThousands;
        }
        if (E < 0) {
            sSuffix = Print("e-%03d", -E);
        } else if (E > 0 || !rCall.bRemoveExponents) {
            sSuffix = Print("e%03d", E);
        }
    }
    std::string sPad;
    std::string sSign = bNegative ? "-" : "";
    if (!rCall.bPadded && sSuffix == " ") {
        sSuffix.clear();
    }
    if (rCall.bPadded) {
        sPad = std::string(static_cast<std::size_t>(3 - N), ' ');
        if (!bNegative) {
            sSign = " ";
        }
    }
    if (rCall.bRemoveTrailing) {
        while (!sFraction.empty() && sFraction.back() == '0') {
            sFraction.pop_back();
        }
        if (sFraction.empty() && !rCall.bPadded) {
            sPoint.clear();
        }
    }
    std::string sText = sPad + sSign + sInteger + sPoint + sFraction + sSuffix;
    while (rCall.bPadded && static_cast<int>(sText.size()) < W) {
        sText += ' ';
    }
    return sText;
}

std::string Formatted(const TCall& rCall)
{
    return gFormatEngineering(rCall.dValue, static_cast<unsigned>(rCall.nDigits),
                              rCall.bSignificant, rCall.bPadded, rCall.bRemoveTrailing,
                              gNormalizeUnitScale(rCall.nScale), rCall.bRemoveExponents);
}

TEST(FormatModel, RandomCallsAgree)
{
    CRandomNumbers random(20260731);
    for (int nRound = 0; nRound < kRounds; ++nRound) {
        const TCall call{random.Number(), 1 + random.Int(24), random.Flag(), random.Flag(),
                         random.Flag(),   random.Int(4),      random.Flag()};
        ASSERT_EQ(Formatted(call), Model(call))
            << call.dValue << " digits " << call.nDigits << " significant " << call.bSignificant
            << " padded " << call.bPadded << " scale " << call.nScale;
    }
}

TEST(FormatModel, EverySwitchAgreesOnHardNumbers)
{
    const double values[] = {
        0,      -0.0,  0.5,   1.125, 9.995,   99.995,    999.995,
        9995.0, 1e-24, 1e24,  1e27,  -1e-27,  0.0099995, 5e-324,
        1e15,   999.5, 99.95, 9.5,   -9.5e14, 4.5e-16,   1.7976931348623157e308};
    for (const double dValue : values) {
        for (int nDigits = 1; nDigits <= 20; ++nDigits) {
            for (int nSwitches = 0; nSwitches < 16; ++nSwitches) {
                for (int nScale = 0; nScale <= 4; ++nScale) {
                    const TCall call{dValue,
                                     nDigits,
                                     (nSwitches & 1) != 0,
                                     (nSwitches & 2) != 0,
                                     (nSwitches & 4) != 0,
                                     nScale,
                                     (nSwitches & 8) != 0};
                    ASSERT_EQ(Formatted(call), Model(call))
                        << dValue << " digits " << nDigits << " switches " << nSwitches << " scale "
                        << nScale;
                }
            }
        }
    }
}

TEST(FormatModel, SeventeenDigitsComeBackAsTheyWere)
{
    // The parser multiplies with rounded powers of ten, so it may miss by some units in the last
    // place, and beyond 10^290 or so its power leaves the range.
    CRandomNumbers random(9);
    for (int nRound = 0; nRound < kRounds; ++nRound) {
        const double dValue = random.Number();
        const bool bSi = random.Flag();
        const std::string sText = gFormatEngineering(
            dValue, 17, true, false, true, bSi ? TeUnitScale::Si : TeUnitScale::Spice, true);
        const char* pEnd = nullptr;
        double dBack = 0;
        ASSERT_EQ(gParseEngineering(sText.c_str(), dBack, &pEnd, bSi), "") << sText;
        ASSERT_EQ(*pEnd, '\0') << sText;
        ASSERT_EQ(std::signbit(dBack), std::signbit(dValue)) << sText;
        if (std::abs(dValue) > 1e-290 && std::abs(dValue) < 1e290) {
            ASSERT_NEAR(dBack / dValue, 1, 4e-15) << sText;
        }
    }
}

TEST(FormatModel, IntegersComeBackExactly)
{
    for (int nNumber = -100'000; nNumber <= 100'000; ++nNumber) {
        const std::string sText = gFormatFull(nNumber);
        double dBack = 0;
        ASSERT_EQ(gParseEngineering(sText.c_str(), dBack, nullptr, true), "");
        ASSERT_EQ(dBack, nNumber) << sText;
    }
}

} // namespace
