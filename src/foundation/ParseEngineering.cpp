#include "foundation/DecimalText.h"
#include "foundation/NumberFormat.h"
#include "foundation/ParseSuffix.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>

namespace
{

constexpr int kMostDigits = 18; // as many as fit in 64 bits for certain

/// What the digits of the mantissa say.
struct TMantissa {
    std::uint64_t mnValue = 0;
    std::int64_t mnShift = 0; ///< the power of ten that the value misses
    bool mbAnyDigit = false;
};

/// Reads digits and at most one point, and moves the text behind them.
template <class TChar> TMantissa ReadMantissa(const TChar*& rpText)
{
    TMantissa mantissa;
    int nTaken = 0;
    bool bBehindPoint = false;
    for (;; ++rpText) {
        if (*rpText == '.' && !bBehindPoint) {
            bBehindPoint = true;
            continue;
        }
        if (!gIsDecimalDigit(*rpText)) {
            return mantissa;
        }
        mantissa.mbAnyDigit = true;
        if (nTaken < kMostDigits) {
            ++nTaken;
            mantissa.mnValue = mantissa.mnValue * 10 + static_cast<std::uint64_t>(*rpText - '0');
            mantissa.mnShift -= bBehindPoint ? 1 : 0;
        } else {
            mantissa.mnShift += bBehindPoint ? 0 : 1;
        }
    }
}

/// Reads an exponent part and moves the text behind it; without one both stay: 0.
template <class TChar> std::int64_t ReadExponent(const TChar*& rpText)
{
    // Far above what any text's length can shift the point by, far below an overflow.
    constexpr std::int64_t limit = 1'000'000'000'000'000;
    if (*rpText != 'e' && *rpText != 'E') {
        return 0;
    }
    const TChar* pAt = rpText + 1;
    const bool bNegative = *pAt == '-';
    if (*pAt == '-' || *pAt == '+') {
        ++pAt;
    }
    if (!gIsDecimalDigit(*pAt)) {
        return 0;
    }
    std::int64_t nExponent = 0;
    for (; gIsDecimalDigit(*pAt); ++pAt) {
        if (nExponent < limit) {
            nExponent = nExponent * 10 + (*pAt - '0');
        }
    }
    rpText = pAt;
    return bNegative ? -nExponent : nExponent;
}

/// Multiplies with a power of ten that is put together from the powers with one bit each.
double Scale(double dMantissa, std::int64_t nExponent)
{
    constexpr std::array<double, 9> powers{1e1, 1e2, 1e4, 1e8, 1e16, 1e32, 1e64, 1e128, 1e256};
    constexpr std::int64_t limit = 511; // all bits set
    std::int64_t nRest = nExponent < 0 ? -nExponent : nExponent;
    if (nRest > limit) {
        // Told by the error number only: kept, a number that is too big is no error.
        errno = ERANGE;
        nRest = limit;
    }
    double dPower = 1;
    for (std::size_t nBit = 0; nRest != 0; nRest >>= 1, ++nBit) {
        if ((nRest & 1) != 0) {
            dPower *= powers[nBit];
        }
    }
    if (dMantissa == 0) {
        return 0; // where the power is infinite, too: the result of an overflow is no NaN
    }
    return nExponent < 0 ? dMantissa / dPower : dMantissa * dPower;
}

template <class TChar>
std::string Parse(const TChar* pText, double& rdResult, const TChar** ppEnd, bool bUseSi)
{
    static constexpr TChar empty = 0;
    const TChar* pAt = pText != nullptr ? pText : &empty;
    while (gIsNumberSpace(*pAt)) {
        ++pAt;
    }
    const bool bNegative = *pAt == '-';
    if (*pAt == '-' || *pAt == '+') {
        ++pAt;
    }
    const TMantissa mantissa = ReadMantissa(pAt);
    if (!mantissa.mbAnyDigit) {
        rdResult = 0;
        if (ppEnd != nullptr) {
            *ppEnd = pText;
        }
        return "Not a number";
    }
    const std::int64_t nExponent = ReadExponent(pAt);
    const TParsedSuffix suffix = gParseSuffix(pAt, bUseSi);
    if (ppEnd != nullptr) {
        *ppEnd = pAt + suffix.mnLength;
    }
    const double dResult = Scale(static_cast<double>(mantissa.mnValue) * suffix.mdFactor,
                                 nExponent + suffix.mnExponent + mantissa.mnShift);
    rdResult = bNegative ? -dResult : dResult;
    return {};
}

} // namespace

std::string gParseEngineering(const char* pText, double& rdResult, const char** ppEnd, bool bUseSi)
{
    return Parse(pText, rdResult, ppEnd, bUseSi);
}

std::string gParseEngineering(const char16_t* pText, double& rdResult, const char16_t** ppEnd,
                              bool bUseSi)
{
    return Parse(pText, rdResult, ppEnd, bUseSi);
}
