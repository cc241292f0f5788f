#include "foundation/RoundedDigits.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace
{

/// Takes "d.ddde+XX" apart.
TRoundedDigits Split(std::string_view sScientific, unsigned nCount, bool bNegative)
{
    TRoundedDigits rounded;
    rounded.mbNegative = bNegative;
    rounded.msDigits.reserve(nCount);
    rounded.msDigits += sScientific.front();
    if (nCount > 1) {
        rounded.msDigits += sScientific.substr(2, nCount - 1);
    }
    std::string_view sExponent = sScientific.substr(nCount > 1 ? nCount + 2 : 2);
    if (sExponent.front() == '+') {
        sExponent.remove_prefix(1); // from_chars takes a minus only
    }
    int nExponent = 0;
    std::from_chars(sExponent.data(), sExponent.data() + sExponent.size(), nExponent);
    rounded.mnPosition = nExponent + 1;
    return rounded;
}

} // namespace

TRoundedDigits gRoundToDigits(double dValue, unsigned nCount)
{
    const auto convert = [dValue, nCount](char* pFirst, char* pLast) {
        const auto [pEnd, error] =
            std::to_chars(pFirst, pLast, std::abs(dValue), std::chars_format::scientific,
                          static_cast<int>(nCount) - 1);
        return Split({pFirst, pEnd}, nCount, std::signbit(dValue));
    };
    constexpr unsigned mostAround = 8; // the point, "e+" and three digits, with room to spare
    std::array<char, 48> buffer;
    if (nCount + mostAround <= buffer.size()) {
        return convert(buffer.data(), buffer.data() + buffer.size());
    }
    std::string sBuffer(nCount + mostAround, '\0');
    return convert(sBuffer.data(), sBuffer.data() + sBuffer.size());
}
