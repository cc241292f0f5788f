#include "platform/base/Utf8Codec.h"

#include <cstddef>

namespace
{

/// What a lead byte asks for: how many bytes, and the range of the second one, which is where
/// overlong forms, surrogates and numbers above U+10FFFF are told.
struct TLead {
    std::size_t nBytes = 0; // 0: can't begin a character
    unsigned nLeastSecond = 0x80;
    unsigned nMostSecond = 0xBF;
};

constexpr TLead LeadOf(unsigned nByte)
{
    if (nByte < 0x80) {
        return {1};
    }
    if (nByte < 0xC2 || nByte > 0xF4) {
        return {0};
    }
    if (nByte < 0xE0) {
        return {2};
    }
    if (nByte < 0xF0) {
        return {3, nByte == 0xE0 ? 0xA0U : 0x80U, nByte == 0xED ? 0x9FU : 0xBFU};
    }
    return {4, nByte == 0xF0 ? 0x90U : 0x80U, nByte == 0xF4 ? 0x8FU : 0xBFU};
}

} // namespace

bool CUtf8Codec::DecodeNext(std::string_view& rsRest, std::u16string& rsOut) const
{
    const auto byteAt = [&rsRest](std::size_t nAt) {
        return static_cast<unsigned>(static_cast<unsigned char>(rsRest[nAt]));
    };
    const TLead lead = LeadOf(byteAt(0));
    unsigned nChar = lead.nBytes < 2 ? byteAt(0) : byteAt(0) & (0x7FU >> lead.nBytes);
    std::size_t nDone = 1;
    for (; nDone < lead.nBytes; ++nDone) {
        const unsigned nLeast = nDone == 1 ? lead.nLeastSecond : 0x80U;
        const unsigned nMost = nDone == 1 ? lead.nMostSecond : 0xBFU;
        if (nDone == rsRest.size() || byteAt(nDone) < nLeast || byteAt(nDone) > nMost) {
            break;
        }
        nChar = (nChar << 6U) | (byteAt(nDone) & 0x3FU);
    }
    rsRest.remove_prefix(nDone);
    if (nDone != lead.nBytes) {
        return false;
    }
    if (nChar < 0x10000) {
        rsOut.push_back(static_cast<char16_t>(nChar));
    } else {
        rsOut.push_back(static_cast<char16_t>(0xD7C0U + (nChar >> 10U)));
        rsOut.push_back(static_cast<char16_t>(0xDC00U | (nChar & 0x3FFU)));
    }
    return true;
}

bool CUtf8Codec::EncodeNext(std::u16string_view& rsRest, std::string& rsOut) const
{
    const std::size_t nUnits = gCountFirstUnits(rsRest);
    const unsigned nFirst = rsRest[0];
    const unsigned nSecond = nUnits == 2 ? rsRest[1] : 0U;
    rsRest.remove_prefix(nUnits);

    const auto append = [&rsOut](unsigned nByte) { rsOut.push_back(static_cast<char>(nByte)); };
    const auto appendTrail = [append](unsigned nBits) { append(0x80U | (nBits & 0x3FU)); };
    if (nUnits == 2) {
        const unsigned nChar = ((nFirst - 0xD7C0U) << 10U) | (nSecond & 0x3FFU);
        append(0xF0U | (nChar >> 18U));
        appendTrail(nChar >> 12U);
        appendTrail(nChar >> 6U);
        appendTrail(nChar);
        return true;
    }
    if ((nFirst & 0xF800U) == 0xD800U) {
        return false;
    }
    if (nFirst < 0x80) {
        append(nFirst);
    } else if (nFirst < 0x800) {
        append(0xC0U | (nFirst >> 6U));
        appendTrail(nFirst);
    } else {
        append(0xE0U | (nFirst >> 12U));
        appendTrail(nFirst >> 6U);
        appendTrail(nFirst);
    }
    return true;
}
