#include "foundation/Utf8Units.h"

#include "platform/base/Ascii.h"

#include <algorithm>

namespace
{

constexpr std::size_t kMostSteps = 4;

unsigned ByteAt(std::string_view sText, std::size_t nIndex) noexcept
{
    return nIndex < sText.size() ? static_cast<unsigned char>(sText[nIndex]) : 0U;
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

std::size_t gCharacterStart(std::string_view sText, std::size_t nIndex) noexcept
{
    const std::size_t nLeast = nIndex - std::min(nIndex, kMostSteps);
    while (nIndex > nLeast && nIndex < sText.size() && gIsContinuation(sText[nIndex])) {
        --nIndex;
    }
    return nIndex;
}

std::u16string gDecodeUnits(std::string_view sText)
{
    std::u16string sUnits;
    sUnits.reserve(sText.size()); // a sequence gives one unit and has at least a byte
    std::size_t nIndex = 0;
    while (nIndex < sText.size()) {
        const std::string_view sRest = sText.substr(nIndex);
        const std::string_view sAscii = sRest.substr(0, gFindNonAscii(sRest));
        const std::string_view sRun = sAscii.substr(0, sAscii.find('\0'));
        gAppendWidened(sRun, sUnits);
        nIndex += sRun.size();
        if (sRun.size() < sAscii.size()) {
            break; // a zero ends the text
        }
        while (nIndex < sText.size() && static_cast<unsigned char>(sText[nIndex]) >= 0x80) {
            sUnits += gDecodeUnit(sText, nIndex);
        }
    }
    return sUnits;
}

std::size_t gMeasureUnits(std::u16string_view sText) noexcept
{
    std::size_t nBytes = sText.size();
    std::size_t nAt = gFindNonAscii(sText);
    while (nAt < sText.size()) {
        for (; nAt < sText.size() && sText[nAt] >= 0x80; ++nAt) {
            nBytes += sText[nAt] < 0x800 ? 1U : 2U;
        }
        nAt += gFindNonAscii(sText.substr(nAt));
    }
    return nBytes;
}

char* gEncodeUnits(std::u16string_view sText, char* pOut) noexcept
{
    const auto append = [&pOut](unsigned nByte) { *pOut++ = static_cast<char>(nByte); };
    std::u16string_view sRest = sText;
    while (!sRest.empty()) {
        const std::size_t nAscii = gFindNonAscii(sRest);
        gNarrowAscii(sRest.substr(0, nAscii), pOut);
        pOut += nAscii;
        sRest.remove_prefix(nAscii);
        for (; !sRest.empty() && sRest.front() >= 0x80; sRest.remove_prefix(1)) {
            const unsigned nUnit = sRest.front();
            if (nUnit < 0x800) {
                append(0xC0U | (nUnit >> 6U));
            } else {
                append(0xE0U | (nUnit >> 12U));
                append(0x80U | ((nUnit >> 6U) & 0x3FU));
            }
            append(0x80U | (nUnit & 0x3FU));
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
