#include "foundation/Utf8Units.h"

#include "platform/base/Ascii.h"

#include <algorithm>
#include <array>

namespace
{

constexpr std::size_t kMostSteps = 4;
constexpr std::size_t kMostBlocks = 0x7FFF; // so many can add 2 to 16 bits

unsigned ByteAt(std::string_view sText, std::size_t nIndex) noexcept
{
    return nIndex < sText.size() ? static_cast<unsigned char>(sText[nIndex]) : 0U;
}

bool IsHigh(char chByte) noexcept
{
    return static_cast<unsigned char>(chByte) >= 0x80;
}

// The bytes of a unit.
std::size_t SizeOf(char16_t chUnit) noexcept
{
    return 1U + (chUnit < 0x80 ? 0U : 1U) + (chUnit < 0x800 ? 0U : 1U);
}

char* Encode(char16_t chUnit, char* pOut) noexcept
{
    const unsigned nUnit = chUnit;
    const auto append = [&pOut](unsigned nByte) { *pOut++ = static_cast<char>(nByte); };
    switch (SizeOf(chUnit)) {
    case 1:
        append(nUnit);
        return pOut;
    case 2:
        append(0xC0U | (nUnit >> 6U));
        break;
    default:
        append(0xE0U | (nUnit >> 12U));
        append(0x80U | ((nUnit >> 6U) & 0x3FU));
    }
    append(0x80U | (nUnit & 0x3FU));
    return pOut;
}

} // namespace

char16_t gDecodeUnit(std::string_view sText, std::size_t& rnIndex) noexcept
{
    const unsigned nLead = ByteAt(sText, rnIndex);
    if (nLead == 0) {
        return 0;
    }
    const std::size_t nFirst = rnIndex;
    const auto trail = [&](std::size_t nAt) { return ByteAt(sText, nFirst + nAt) & 0x3FU; };
    const std::size_t nLength = gSequenceLength(static_cast<char>(nLead));
    rnIndex += nLength;
    unsigned nUnit = 0;
    switch (nLength) {
    case 2:
        nUnit = (nLead & 0x1FU) * 64 + trail(1);
        break;
    case 3:
        nUnit = (nLead & 0x0FU) * 4096 + trail(1) * 64 + trail(2);
        break;
    case 4: // cut to 16 bits: the lead byte and the top of the second are lost
        nUnit = (trail(1) & 0x0FU) * 4096 + trail(2) * 64 + trail(3);
        break;
    default:
        nUnit = nLead < 0x80 ? nLead : U'?';
    }
    return static_cast<char16_t>(nUnit);
}

std::size_t gNextCharacter(std::string_view sText, std::size_t nIndex) noexcept
{
    if (nIndex >= sText.size()) {
        return sText.size();
    }
    do {
        ++nIndex;
    } while (nIndex < sText.size() && gIsContinuation(sText[nIndex]));
    return nIndex;
}

std::size_t gPreviousCharacter(std::string_view sText, std::size_t nIndex) noexcept
{
    const std::size_t nLeast = nIndex - std::min(nIndex, kMostSteps);
    if (nIndex > nLeast) {
        --nIndex;
    }
    while (nIndex > nLeast && gIsContinuation(sText[nIndex])) {
        --nIndex;
    }
    return nIndex;
}

std::size_t gSequenceStart(std::string_view sText, std::size_t nIndex) noexcept
{
    std::size_t nAt = 0;
    while (nAt < nIndex) {
        if (!IsHigh(sText[nAt])) {
            nAt += gFindNonAscii(sText.substr(nAt, nIndex - nAt));
            continue;
        }
        const std::size_t nNext = nAt + gSequenceLength(sText[nAt]);
        if (nNext > nIndex) {
            return nAt;
        }
        nAt = nNext;
    }
    return nAt;
}

std::u16string gDecodeUnits(std::string_view sText)
{
    // By way of room of its own, which spares the text the filling of new room with zeros.
    constexpr std::size_t room = 512;
    std::array<char16_t, room> units;
    std::size_t nCount = 0;
    std::u16string sUnits;
    sUnits.reserve(sText.size()); // a sequence gives one unit and has at least a byte
    std::size_t nIndex = 0;
    while (nIndex < sText.size()) {
        if (nCount + kByteBlock > room) {
            sUnits.append(units.data(), nCount);
            nCount = 0;
        }
        const TByteBlock block = gLoadSome(sText.substr(nIndex));
        gStoreWidened(block, units.data() + nCount);
        const std::size_t nAscii = std::min(gFindSet(block <= 0), kByteBlock);
        nIndex += nAscii;
        nCount += nAscii;
        while (nIndex < sText.size() && IsHigh(sText[nIndex]) && nCount < room) {
            units[nCount++] = gDecodeUnit(sText, nIndex);
        }
        if (nIndex < sText.size() && sText[nIndex] == '\0') {
            break; // a zero ends the text
        }
    }
    return sUnits.append(units.data(), nCount);
}

TMeasuredUnits gMeasureUnits(std::u16string_view sText) noexcept
{
    TMeasuredUnits measured;
    std::size_t& rnAt = measured.nUnits;
    bool bZero = false;
    while (rnAt + kUnitBlock <= sText.size() && !bZero) {
        TUnitBlock further{}; // bytes of each unit behind its first, summed up over the blocks
        const std::size_t nEnd = rnAt + std::min(sText.size() - rnAt, kMostBlocks * kUnitBlock);
        for (; rnAt + kUnitBlock <= nEnd; rnAt += kUnitBlock) {
            const TUnitBlock block = gLoadBlock(sText.data() + rnAt);
            bZero = gAnySet(block == 0);
            if (bZero) {
                break;
            }
            // What holds is all bits set, which is less 1.
            further -= (block >= 0x80) + (block >= 0x800);
        }
        for (std::size_t i = 0; i < kUnitBlock; ++i) {
            measured.nBytes += further[i];
        }
    }
    measured.nBytes += rnAt;
    for (; rnAt < sText.size() && sText[rnAt] != 0; ++rnAt) {
        measured.nBytes += SizeOf(sText[rnAt]);
    }
    return measured;
}

char* gEncodeUnits(std::u16string_view sText, char* pOut) noexcept
{
    std::u16string_view sRest = sText;
    while (!sRest.empty()) {
        if (sRest.size() >= kByteBlock) {
            // There is room for all of the block, ASCII or not: a unit has at least a byte.
            gNarrowBlock(sRest.data(), pOut);
            const std::size_t nAscii = gFindNonAscii(sRest.substr(0, kByteBlock));
            pOut += nAscii;
            sRest.remove_prefix(nAscii);
        }
        while (!sRest.empty() && (sRest.front() >= 0x80 || sRest.size() < kByteBlock)) {
            pOut = Encode(sRest.front(), pOut);
            sRest.remove_prefix(1);
        }
    }
    return pOut;
}

std::u16string gSwapUnitBytes(std::u16string_view sText)
{
    std::u16string sSwapped(sText);
    for (char16_t& rchUnit : sSwapped) {
        const unsigned nUnit = rchUnit;
        rchUnit = static_cast<char16_t>((nUnit << 8U) | (nUnit >> 8U));
    }
    return sSwapped;
}
