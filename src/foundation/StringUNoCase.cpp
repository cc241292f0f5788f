#include "foundation/StringU.h"
#include "foundation/Utf8Units.h"
#include "platform/base/Ascii.h"
#include "platform/base/ByteBlock.h"
#include "platform/base/CodePage.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace
{

int CompareSizes(std::size_t nLeft, std::size_t nRight) noexcept
{
    return (nLeft > nRight ? 1 : 0) - (nLeft < nRight ? 1 : 0);
}

// Of one block of each text a bit for each byte that isn't ASCII or differs by more than the case.
unsigned MaskToDecide(const char* pLeft, const char* pRight) noexcept
{
    constexpr signed char caseBit = 'a' - 'A';
    const TByteBlock left = gLoadBlock(pLeft);
    const TByteBlock right = gLoadBlock(pRight);
    const TByteBlock difference = left ^ right;
    const TByteBlock lowered = left | caseBit;
    const TByteBlock isLetter = (lowered > 'a' - 1) & (lowered < 'z' + 1);
    const TByteBlock isSame = difference == (difference & isLetter & caseBit);
    return gMaskOf(~isSame | left | right); // whose top bits are set
}

// In the place of a difference. (A std::optional would be put together in memory, which costs as
// much as the comparison.)
constexpr int kNotAscii = std::numeric_limits<int>::min();

// Two bytes of which at least one isn't ASCII, or which may differ. Result: kNotAscii for the
// former.
int Decide(char chLeft, char chRight) noexcept
{
    if (((chLeft | chRight) & 0x80) != 0) {
        return kNotAscii;
    }
    return gToLowerAscii(chLeft) - gToLowerAscii(chRight);
}

// For texts that are ASCII at least as far as it takes to decide. Result: kNotAscii for others.
int CompareAscii(std::string_view sLeft, std::string_view sRight) noexcept
{
    const std::size_t nCommon = std::min(sLeft.size(), sRight.size());
    if (nCommon >= kByteBlock) {
        // Two blocks at a time, because a guess per block of where a name ends is often wrong. The
        // second may begin inside the first, and the last two inside those before.
        const std::size_t nSecond = std::min(nCommon, 2 * kByteBlock) - kByteBlock;
        const std::size_t nLast = nCommon - kByteBlock - nSecond;
        for (std::size_t nAt = 0;; nAt = std::min(nAt + 2 * kByteBlock, nLast)) {
            const char* const pLeft = sLeft.data() + nAt;
            const char* const pRight = sRight.data() + nAt;
            const unsigned nFirstMask = MaskToDecide(pLeft, pRight);
            const unsigned nSecondMask = MaskToDecide(pLeft + nSecond, pRight + nSecond);
            if ((nFirstMask | nSecondMask) != 0) {
                const std::uint64_t nMask = nFirstMask | static_cast<std::uint64_t>(nSecondMask)
                                                             << nSecond;
                const auto nFound = static_cast<std::size_t>(std::countr_zero(nMask));
                return Decide(pLeft[nFound], pRight[nFound]);
            }
            if (nAt == nLast) {
                return CompareSizes(sLeft.size(), sRight.size());
            }
        }
    }
    for (std::size_t nAt = 0; nAt < nCommon; ++nAt) {
        const int nDifference = Decide(sLeft[nAt], sRight[nAt]);
        if (nDifference != 0) {
            return nDifference;
        }
    }
    return CompareSizes(sLeft.size(), sRight.size());
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

// From the character on that holds the first byte in which they differ. In both it begins at the
// same place, because the lengths of all those before come from equal bytes. (Not inlined, so that
// plain texts don't pay for its registers.)
[[gnu::noinline]] int CompareUnits(std::string_view sLeft, std::string_view sRight) noexcept
{
    const std::size_t nCommon = std::min(sLeft.size(), sRight.size());
    const auto itSame =
        std::mismatch(sLeft.begin(), sLeft.begin() + static_cast<std::ptrdiff_t>(nCommon),
                      sRight.begin())
            .first;
    const auto nSame = static_cast<std::size_t>(itSame - sLeft.begin());
    std::size_t nLeft = gSequenceStart(sLeft, nSame);
    std::size_t nRight = nLeft;
    while (nLeft < sLeft.size() && nRight < sRight.size()) {
        const int nDifference = NextLowered(sLeft, nLeft) - NextLowered(sRight, nRight);
        if (nDifference != 0) {
            return nDifference;
        }
    }
    return (nLeft < sLeft.size() ? 1 : 0) - (nRight < sRight.size() ? 1 : 0);
}

} // namespace

int CompareNoCase(const CStringU& rsLeft, const CStringU& rsRight) noexcept
{
    const std::string_view sLeft = rsLeft.Text();
    const std::string_view sRight = rsRight.Text();
    const int nResult = CompareAscii(sLeft, sRight);
    return nResult != kNotAscii ? nResult : CompareUnits(sLeft, sRight);
}

int CStringU::CompareNoCase(const CStringU& rsOther) const noexcept
{
    return ::CompareNoCase(*this, rsOther);
}
