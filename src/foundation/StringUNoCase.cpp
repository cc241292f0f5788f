#include "foundation/StringU.h"
#include "foundation/Utf8Units.h"
#include "platform/base/Ascii.h"
#include "platform/base/ByteBlock.h"
#include "platform/base/CodePage.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace
{

int CompareSizes(std::size_t nLeft, std::size_t nRight) noexcept
{
    return (nLeft > nRight ? 1 : 0) - (nLeft < nRight ? 1 : 0);
}

// One block of each text. Result: the first byte that isn't ASCII or differs; kByteBlock or more if
// there is none.
std::size_t FindToDecide(const char* pLeft, const char* pRight) noexcept
{
    const TByteBlock left = gLoadBlock(pLeft);
    const TByteBlock right = gLoadBlock(pRight);
    return gFindSet(((left | right) < 0) | (gLowerAsciiBlock(left) != gLowerAsciiBlock(right)));
}

// Two bytes of which at least one isn't ASCII, or which differ. Result: nullopt for the former.
std::optional<int> Decide(char chLeft, char chRight) noexcept
{
    if (((chLeft | chRight) & 0x80) != 0) {
        return std::nullopt;
    }
    return gToLowerAscii(chLeft) - gToLowerAscii(chRight);
}

// For texts that are ASCII at least as far as it takes to decide. Result: nullopt for others.
std::optional<int> CompareAscii(std::string_view sLeft, std::string_view sRight) noexcept
{
    const std::size_t nCommon = std::min(sLeft.size(), sRight.size());
    if (nCommon >= kByteBlock) {
        const std::size_t nLastBlock = nCommon - kByteBlock;
        for (std::size_t nAt = 0;; nAt = std::min(nAt + kByteBlock, nLastBlock)) {
            const std::size_t nFound = FindToDecide(sLeft.data() + nAt, sRight.data() + nAt);
            if (nFound < kByteBlock) {
                return Decide(sLeft[nAt + nFound], sRight[nAt + nFound]);
            }
            if (nAt == nLastBlock) { // it may have begun inside the one before
                return CompareSizes(sLeft.size(), sRight.size());
            }
        }
    }
    for (std::size_t nAt = 0; nAt < nCommon; ++nAt) {
        const auto nDifference = Decide(sLeft[nAt], sRight[nAt]);
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

// From the character on that holds the first byte in which they differ.
int CompareUnits(std::string_view sLeft, std::string_view sRight) noexcept
{
    const std::size_t nCommon = std::min(sLeft.size(), sRight.size());
    const auto itSame =
        std::mismatch(sLeft.begin(), sLeft.begin() + static_cast<std::ptrdiff_t>(nCommon),
                      sRight.begin())
            .first;
    const auto nSame = static_cast<std::size_t>(itSame - sLeft.begin());
    std::size_t nLeft = gCharacterStart(sLeft, nSame);
    std::size_t nRight = gCharacterStart(sRight, nSame);
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
    const auto nResult = CompareAscii(sLeft, sRight);
    return nResult.has_value() ? *nResult : CompareUnits(sLeft, sRight);
}

int CStringU::CompareNoCase(const CStringU& rsOther) const noexcept
{
    return ::CompareNoCase(*this, rsOther);
}
