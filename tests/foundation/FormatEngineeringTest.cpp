#include "foundation/DoubledPoint.h"
#include "foundation/FormatScopes.h"
#include "foundation/NumberFormat.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{

using enum TeUnitScale;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
const boost::tribool kOpen = boost::indeterminate;

struct Case {
    const char* pName;
    double dValue;
    unsigned nDigits;
    bool bSignificant;
    bool bPadded;
    boost::tribool bRemoveTrailing;
    TeUnitScale eScale;
    boost::tribool bRemoveExponents;
    const char* pText;
};

void ExpectTexts(std::initializer_list<Case> cases)
{
    const CFormatSettingsScope scope;
    for (const Case& rCase : cases) {
        EXPECT_EQ(gFormatEngineering(rCase.dValue, rCase.nDigits, rCase.bSignificant, rCase.bPadded,
                                     rCase.bRemoveTrailing, rCase.eScale, rCase.bRemoveExponents),
                  rCase.pText)
            << rCase.pName;
    }
}

TEST(FormatEngineering, WorkedExamples)
{
    ExpectTexts({
        {"kilo", 1500, 8, false, false, true, Spice, kOpen, "1.5k"},
        {"micro", 0.00022, 8, false, false, true, Spice, kOpen, "220u"},
        {"negative", -4.7e-11, 8, false, false, true, Spice, kOpen, "-47p"},
        {"past the table", 1e30, 8, false, false, true, Spice, kOpen, "1e030"},
        {"zero", 0, 8, false, false, true, Spice, kOpen, "0"},
        {"zero exponent kept", 0, 8, false, false, true, Engineering, false, "0e000"},
    });
}

TEST(FormatEngineering, EdgeCases)
{
    ExpectTexts({
        {"carry into the next thousand", 999.9996, 3, false, false, true, Spice, kOpen, "1k"},
        {"the same, zeros kept", 999.9996, 3, false, false, false, Spice, kOpen, "1.000k"},
        {"no row in spice", 1e-24, 8, false, false, true, Spice, kOpen, "1e-024"},
        {"no row in hspice", 1e15, 8, false, false, true, HSpice, kOpen, "1e015"},
        {"a row in SI", 1e-24, 8, false, false, true, Si, kOpen, "1y"},
        {"above the SI table", 1e27, 8, false, false, true, Si, kOpen, "1e027"},
        {"below the SI table", 1e-25, 8, false, false, true, Si, kOpen, "100e-027"},
        {"at least 3 significant", 1.23456, 1, true, false, true, Spice, kOpen, "1.23"},
        {"2 is less than 3, too", 1.23456, 2, true, false, true, Spice, kOpen, "1.23"},
        {"mega of spice", 2.5e6, 6, true, false, true, Spice, kOpen, "2.5X"},
        {"mega of hspice", 2.5e6, 6, true, false, true, HSpice, kOpen, "2.5MEG"},
        {"mega of SI", 2.5e6, 6, true, false, true, Si, kOpen, "2.5M"},
        {"the greatest", std::numeric_limits<double>::max(), 6, true, false, true, Spice, kOpen,
         "179.769e306"},
        {"the least normal", std::numeric_limits<double>::min(), 6, true, false, true, Spice, kOpen,
         "22.2507e-309"},
        {"the least of all", std::numeric_limits<double>::denorm_min(), 6, true, false, true, Spice,
         kOpen, "4.94066e-324"},
        {"digits of the settings", 1.23456789, 0, true, false, true, Spice, kOpen, "1.23457"},
        {"places of the settings", 1.23456789, 0, false, false, true, Spice, kOpen, "1.234568"},
        {"scale of the settings", 1e6, 6, true, false, true, Undefined, kOpen, "1X"},
    });
}

TEST(FormatEngineering, ZeroHasItsOwnDigitCount)
{
    ExpectTexts({
        {"significant", 0, 4, true, false, false, Spice, kOpen, "0.000"},
        {"less than 3 significant", 0, 1, true, false, false, Spice, kOpen, "0."},
        {"the bare point goes with the zeros", 0, 1, true, false, true, Spice, kOpen, "0"},
        {"places", 0, 4, false, false, false, Spice, kOpen, "0.0000"},
        {"minus zero", -0.0, 4, false, false, true, Spice, kOpen, "-0"},
        {"minus zero, engineering", -0.0, 2, false, false, false, Engineering, false, "-0.00e000"},
        {"scientific", 0, 2, false, false, false, Scientific, false, "0.00e000"},
        {"padded", 0, 3, true, true, true, Spice, kOpen, "   0.       "},
    });
}

TEST(FormatEngineering, WhatIsNoNumberIsOneWord)
{
    const double dNan = std::numeric_limits<double>::quiet_NaN();
    for (const bool bPadded : {false, true}) {
        for (const TeUnitScale eScale : {Si, Spice, Scientific}) {
            ExpectTexts({
                {"infinity", kInfinity, 5, true, bPadded, true, eScale, false, "inf"},
                {"minus infinity", -kInfinity, 5, true, bPadded, true, eScale, false, "-inf"},
                {"not a number", dNan, 5, true, bPadded, true, eScale, false, "nan"},
            });
        }
    }
}

TEST(FormatEngineering, RoundedTwiceWhereThePlacesCount)
{
    ExpectTexts({
        {"a tie of the first rounding is even", 0.5, 3, true, false, false, Spice, kOpen, "500.m"},
        {"exact tie down", 1.125, 3, true, false, true, Spice, kOpen, "1.12"},
        {"exact tie up", 1.375, 3, true, false, true, Spice, kOpen, "1.38"},
        {"the second rounding is half up", 1.125, 2, false, false, true, Spice, kOpen, "1.13"},
        {"one digit before: a carry makes a digit", 9.9996, 3, false, false, false, Spice, kOpen,
         "10.000"},
        {"two digits before: a carry makes a digit", 99.9996, 3, false, false, false, Spice, kOpen,
         "100.000"},
        {"a carry that stays inside", 1.9996, 3, false, false, false, Spice, kOpen, "2.000"},
        {"rounded up twice", 1.44995, 1, false, false, false, Spice, kOpen, "1.5"},
        {"three digits are rounded once", 144.45, 1, false, false, false, Spice, kOpen, "144.4"},
    });
}

TEST(FormatEngineering, ScientificHasOneDigitBeforeThePoint)
{
    ExpectTexts({
        {"one digit", 1500, 4, true, false, true, Scientific, kOpen, "1.5e003"},
        {"two digits", 15000, 4, true, false, true, Scientific, kOpen, "1.5e004"},
        {"three digits", 150000, 4, true, false, true, Scientific, kOpen, "1.5e005"},
        {"zero exponent removed", 1.5, 4, true, false, true, Scientific, true, "1.5"},
        {"zero exponent kept", 1.5, 4, true, false, true, Scientific, false, "1.5e000"},
        {"negative exponent", 1.5e-5, 4, true, false, true, Scientific, kOpen, "1.5e-005"},
        // Kept: the places are counted before the point moves.
        {"places, one digit", 1.23456789, 2, false, false, true, Scientific, true, "1.23"},
        {"places, two digits", 12.3456789, 2, false, false, true, Scientific, true, "1.235e001"},
        {"places, three digits", 123.456789, 2, false, false, true, Scientific, true, "1.2346e002"},
        {"a carry counts the new digit", 99.996, 2, false, false, false, Scientific, true,
         "1.0000e002"},
    });
}

TEST(FormatEngineering, ExponentForm)
{
    ExpectTexts({
        {"a multiple of 3", 15e4, 4, true, false, true, Engineering, kOpen, "150e003"},
        {"below 1", 1.5e-4, 4, true, false, true, Engineering, kOpen, "150e-006"},
        {"zero removed", 15, 4, true, false, true, Engineering, true, "15"},
        {"zero kept", 15, 4, true, false, true, Engineering, false, "15e000"},
        {"negative number", -15, 4, true, false, true, Engineering, false, "-15e000"},
    });
}

TEST(FormatEngineering, PaddedNumbersLineUp)
{
    ExpectTexts({
        {"one digit before", 1.5, 4, true, true, true, Spice, kOpen, "   1.5       "},
        {"two digits before", 15, 4, true, true, true, Spice, kOpen, "  15.        "},
        {"three digits before", 150, 4, true, true, true, Spice, kOpen, " 150.        "},
        {"with a suffix", 1500, 4, true, true, true, Spice, kOpen, "   1.5k      "},
        {"the longest suffix", 1.5e6, 4, true, true, true, HSpice, kOpen, "   1.5MEG    "},
        {"negative", -1.5, 4, true, true, true, Spice, kOpen, "  -1.5       "},
        {"with an exponent", -1.5e-30, 4, true, true, true, Spice, kOpen, "  -1.5e-030  "},
        {"scientific", 150, 4, true, true, true, Scientific, kOpen, "   1.5e002   "},
        {"zeros kept", 1.5, 4, true, true, false, Spice, kOpen, "   1.500     "},
        {"the width is that of the first digit count", 1.5, 2, false, true, false, Spice, kOpen,
         "   1.50       "},
    });
}

TEST(FormatEngineering, EveryPaddedTextHasOneWidth)
{
    for (unsigned nDigits = 1; nDigits < 20; ++nDigits) {
        for (int nScale = 0; nScale <= 4; ++nScale) {
            for (int nPower = -30; nPower < 30; ++nPower) {
                const double dValue = std::stod("-9.87654321e" + std::to_string(nPower));
                EXPECT_EQ(gFormatEngineering(dValue, nDigits, false, true, kOpen,
                                             gNormalizeUnitScale(nScale), false)
                              .size(),
                          nDigits + 12);
            }
        }
    }
}

TEST(FormatEngineering, ManyDigits)
{
    const auto format = [](double dValue, unsigned nDigits) {
        return gFormatEngineering(dValue, nDigits, true, false, false, Spice, true);
    };
    EXPECT_EQ(format(0.1, 29), "100.00000000000000555111512313m");
    EXPECT_EQ(format(0.1, 60), "100.000000000000005551115123125782702118158340454101562500000m");
    EXPECT_EQ(format(1, 800), "1." + std::string(799, '0'));
    EXPECT_EQ(format(1, kMostFormatDigits), "1." + std::string(kMostFormatDigits - 1, '0'));
    EXPECT_EQ(format(1, std::numeric_limits<unsigned>::max()), format(1, kMostFormatDigits));
    EXPECT_EQ(format(0, std::numeric_limits<unsigned>::max()).size(), kMostFormatDigits + 1);
}

TEST(FormatEngineering, EveryPowerOfTenInEveryScale)
{
    for (int nPower = -300; nPower <= 300; ++nPower) {
        const double dValue = std::stod("1e" + std::to_string(nPower));
        const int nThousands = nPower - ((nPower % 3) + 3) % 3;
        const std::string sDigits =
            "1" + std::string(static_cast<unsigned>(nPower - nThousands), '0');
        char exponent[16];
        std::snprintf(exponent, sizeof(exponent), nThousands < 0 ? "e-%03d" : "e%03d",
                      std::abs(nThousands));
        for (const TeUnitScale eScale : {Si, Spice, HSpice, Engineering}) {
            std::string sSuffix(gGetUnitSuffix(eScale, nThousands).value_or(exponent));
            if (nThousands == 0) {
                sSuffix.clear();
            }
            EXPECT_EQ(gFormatEngineering(dValue, 15, true, false, true, eScale, true),
                      sDigits + sSuffix);
        }
    }
}

TEST(FormatEngineering, DoubledPointsAreRepairedOnTheUnixSide)
{
    EXPECT_EQ(gRepairDoubledPoints("1..5k"), "105k");
    EXPECT_EQ(gRepairDoubledPoints("1...5"), "10.5");
    EXPECT_EQ(gRepairDoubledPoints("....."), "00.");
    EXPECT_EQ(gRepairDoubledPoints("1.5.k"), "1.5.k");
    EXPECT_EQ(gRepairDoubledPoints(""), "");
    for (const bool bIsWine : {false, true}) {
        const CIsWineScope scope(bIsWine);
        EXPECT_EQ(gFormatEngineering(1500, 8, false, false, true, Spice, true), "1.5k");
        EXPECT_EQ(gFormatEngineering(15, 4, true, true, true, Spice, true), "  15.        ");
    }
}

} // namespace
