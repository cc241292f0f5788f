#include "foundation/DoubledPoint.h"
#include "foundation/NonFinite.h"
#include "foundation/NumberFormat.h"
#include "foundation/RoundedDigits.h"
#include "platform/base/IsWine.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace
{

/// The format with everything resolved that the caller left to the settings.
struct TFormat {
    unsigned mnDigits;
    bool mbSignificant;
    bool mbPadded;
    bool mbRemoveTrailingZeroes;
    TeUnitScale meScale;
    bool mbRemoveZeroExponents;
};

/// A number on its way to its text.
struct TNumber {
    std::string msDigits;
    int mnExponent;       ///< the power of ten of the first digit
    std::size_t mnBefore; ///< how many digits stand before the point, 1 to 3
    bool mbNegative;
};

/// What is left over above the multiple of 3 below, 0 to 2.
int OverThousands(int nExponent)
{
    return (nExponent % 3 + 3) % 3;
}

/// Shortens the digits, rounding half up. A carry out of the first digit makes a digit more.
void ShortenDigits(TNumber& rNumber, std::size_t nLength)
{
    std::string& rsDigits = rNumber.msDigits;
    const bool bUp = rsDigits[nLength] >= '5';
    rsDigits.resize(nLength);
    if (!bUp) {
        return;
    }
    std::size_t nAt = nLength;
    while (nAt > 0 && rsDigits[nAt - 1] == '9') {
        rsDigits[--nAt] = '0';
    }
    if (nAt > 0) {
        ++rsDigits[nAt - 1];
        return;
    }
    rsDigits.front() = '1';
    rsDigits += '0';
    ++rNumber.mnBefore;
    ++rNumber.mnExponent;
}

/// The digits of the number, as many as the format shows.
TNumber RoundNumber(double dValue, const TFormat& rFormat, unsigned nCount)
{
    if (dValue == 0) {
        const unsigned nShown = rFormat.mnDigits + (rFormat.mbSignificant ? 0 : 1);
        return {std::string(nShown, '0'), 0, 1, std::signbit(dValue)};
    }
    TRoundedDigits rounded = gRoundToDigits(dValue, nCount);
    const int nExponent = rounded.mnPosition - 1;
    TNumber number{std::move(rounded.msDigits), nExponent,
                   static_cast<std::size_t>(OverThousands(nExponent)) + 1, rounded.mbNegative};
    if (!rFormat.mbSignificant && number.mnBefore < 3) {
        // Rounded a second time: the first rounding had to be made before the digits in front of
        // the point could be counted.
        ShortenDigits(number, nCount - (3 - number.mnBefore));
    }
    if (rFormat.meScale == TeUnitScale::Scientific) {
        number.mnBefore = 1; // the places after the point stay those of up to three digits before
    }
    return number;
}

/// Appends the exponent form, a sign only where it is negative.
void AppendExponent(std::string& rsText, int nExponent)
{
    rsText += nExponent < 0 ? "e-" : "e";
    const std::string sDigits = std::to_string(std::abs(nExponent));
    rsText.append(3 - std::min<std::size_t>(sDigits.size(), 3), '0');
    rsText += sDigits;
}

/// Appends the suffix of the scale, or the exponent where it has none.
void AppendSuffix(std::string& rsText, const TNumber& rNumber, const TFormat& rFormat)
{
    const int nThousands = rNumber.mnExponent - OverThousands(rNumber.mnExponent);
    if (const auto suffix = gGetUnitSuffix(rFormat.meScale, nThousands)) {
        if (rFormat.mbPadded || *suffix != " ") {
            rsText += *suffix;
        }
        return;
    }
    const int nExponent =
        rFormat.meScale == TeUnitScale::Scientific ? rNumber.mnExponent : nThousands;
    if (nExponent != 0 || !rFormat.mbRemoveZeroExponents) {
        AppendExponent(rsText, nExponent);
    }
}

/// Appends the digits with their point.
void AppendDigits(std::string& rsText, const TNumber& rNumber, const TFormat& rFormat)
{
    const std::string_view sDigits = rNumber.msDigits;
    std::string_view sFraction = sDigits.substr(rNumber.mnBefore);
    if (rFormat.mbRemoveTrailingZeroes) {
        sFraction = sFraction.substr(0, sFraction.find_last_not_of('0') + 1);
    }
    rsText += sDigits.substr(0, rNumber.mnBefore);
    const bool bBare = rFormat.mbRemoveTrailingZeroes && sFraction.empty() && !rFormat.mbPadded;
    if (!bBare) {
        rsText += '.';
    }
    rsText += sFraction;
}

std::string ComposeText(const TNumber& rNumber, const TFormat& rFormat, std::size_t nWidth)
{
    std::string sText;
    if (rFormat.mbPadded) {
        sText.append(3 - rNumber.mnBefore, ' ');
    }
    if (rNumber.mbNegative) {
        sText += '-';
    } else if (rFormat.mbPadded) {
        sText += ' ';
    }
    AppendDigits(sText, rNumber, rFormat);
    AppendSuffix(sText, rNumber, rFormat);
    if (rFormat.mbPadded && sText.size() < nWidth) {
        sText.resize(nWidth, ' ');
    }
    return gIsWine() ? gRepairDoubledPoints(std::move(sText)) : sText;
}

} // namespace

std::string gFormatEngineering(double dValue, unsigned nDigits, bool bSignificant, bool bPadded,
                               boost::tribool bRemoveTrailingZeroes, TeUnitScale eScale,
                               boost::tribool bRemoveZeroExponents)
{
    if (const char* const pWord = gNonFiniteWord(dValue)) {
        return pWord;
    }
    const TEngineeringFormatSettings& rSettings = gGetEngineeringFormatSettings();
    if (nDigits == 0) {
        nDigits = rSettings.GetDefaultEngineeringFormatDigits();
    }
    const TFormat format{
        std::min(nDigits, kMostFormatDigits),
        bSignificant,
        bPadded,
        rSettings.GetValidEngineeringFormatRemoveTrailingZeroes(bRemoveTrailingZeroes),
        rSettings.GetValidEngineeringFormatUnitScale(eScale),
        rSettings.GetValidEngineeringFormatRemoveZeroExponents(bRemoveZeroExponents),
    };
    const unsigned nCount = bSignificant ? std::max(format.mnDigits, 3U) : format.mnDigits + 3;
    const std::size_t nWidth = nCount + 9;
    return ComposeText(RoundNumber(dValue, format, nCount), format, nWidth);
}
