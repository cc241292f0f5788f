#include "foundation/StringU.h"
#include "foundation/Utf8Units.h"
#include "platform/base/Ascii.h"
#include "platform/base/CodePage.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace
{

constexpr std::uint64_t kOnes = 0x0101010101010101U;
constexpr std::uint64_t kTopBits = 0x80 * kOnes;
constexpr std::size_t kWord = sizeof(std::uint64_t);

std::uint64_t LoadWord(std::string_view sText, std::size_t nIndex) noexcept
{
    std::uint64_t nWord = 0;
    std::memcpy(&nWord, sText.data() + nIndex, kWord);
    return nWord;
}

// Lowers A to Z in each byte of a word of ASCII. The sums carry into a byte's top bit from 'A' on,
// and from the byte behind 'Z' on.
std::uint64_t LowerAsciiWord(std::uint64_t nWord) noexcept
{
    const std::uint64_t nFromA = nWord + (0x80 - 'A') * kOnes;
    const std::uint64_t nBehindZ = nWord + (0x80 - 'Z' - 1) * kOnes;
    return nWord | (((nFromA & ~nBehindZ) & kTopBits) >> 2U);
}

std::size_t FindDifference(std::string_view sLeft, std::string_view sRight) noexcept
{
    const std::size_t nCommon = std::min(sLeft.size(), sRight.size());
    std::size_t nAt = 0;
    while (nAt + kWord <= nCommon && LoadWord(sLeft, nAt) == LoadWord(sRight, nAt)) {
        nAt += kWord;
    }
    while (nAt < nCommon && sLeft[nAt] == sRight[nAt]) {
        ++nAt;
    }
    return nAt;
}

bool SkipSameAscii(std::string_view sLeft, std::size_t& rnLeft, std::string_view sRight,
                   std::size_t& rnRight) noexcept
{
    if (rnLeft + kWord > sLeft.size() || rnRight + kWord > sRight.size()) {
        return false;
    }
    const std::uint64_t nLeft = LoadWord(sLeft, rnLeft);
    const std::uint64_t nRight = LoadWord(sRight, rnRight);
    if (((nLeft | nRight) & kTopBits) != 0 || LowerAsciiWord(nLeft) != LowerAsciiWord(nRight)) {
        return false;
    }
    rnLeft += kWord;
    rnRight += kWord;
    return true;
}

// A zero inside is a character like any other here, so it must be moved over.
char16_t NextLowered(std::string_view sText, std::size_t& rnIndex) noexcept
{
    if (sText[rnIndex] == '\0') {
        ++rnIndex;
        return 0;
    }
    return gToLowerWide(gDecodeUnit(sText, rnIndex));
}

} // namespace

int CompareNoCase(const CStringU& rsLeft, const CStringU& rsRight) noexcept
{
    const std::string_view sLeft = rsLeft.Text();
    const std::string_view sRight = rsRight.Text();
    const std::size_t nSame = FindDifference(sLeft, sRight);
    std::size_t nLeft = gCharacterStart(sLeft, nSame);
    std::size_t nRight = gCharacterStart(sRight, nSame);
    while (nLeft < sLeft.size() && nRight < sRight.size()) {
        if (SkipSameAscii(sLeft, nLeft, sRight, nRight)) {
            continue;
        }
        const int nDifference = NextLowered(sLeft, nLeft) - NextLowered(sRight, nRight);
        if (nDifference != 0) {
            return nDifference;
        }
    }
    return (nLeft < sLeft.size() ? 1 : 0) - (nRight < sRight.size() ? 1 : 0);
}

int CStringU::CompareNoCase(const CStringU& rsOther) const noexcept
{
    return ::CompareNoCase(*this, rsOther);
}
