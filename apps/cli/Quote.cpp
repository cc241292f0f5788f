#include "cli/Quote.h"

#include <cstddef>
#include <cstdint>

namespace quorvawiz::cli
{
namespace
{
/// How much of a text a message repeats, in bytes.
constexpr std::size_t kLongestQuote = 80;

bool IsInsideCharacter(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// How many bytes the character at the beginning of a text has; 0 if it isn't UTF-8.
std::size_t CharacterSize(std::string_view sText)
{
    const auto nLead = static_cast<unsigned char>(sText.front());
    if (nLead < 0x80)
        return 1;
    const std::size_t nSize = nLead < 0xC2 ? 0 : nLead < 0xE0 ? 2 : nLead < 0xF0 ? 3 : 4;
    if (nSize == 0 || nLead > 0xF4 || sText.size() < nSize)
        return 0;
    std::uint32_t nCode = nLead & (0x7FU >> nSize);
    for (const char c : sText.substr(1, nSize - 1)) {
        if (!IsInsideCharacter(c))
            return 0;
        nCode = nCode << 6U | (static_cast<unsigned char>(c) & 0x3FU);
    }
    const bool bSurrogate = nCode >= 0xD800 && nCode <= 0xDFFF;
    const bool bTooLong = (nSize == 3 && nCode < 0x800) || (nSize == 4 && nCode < 0x10000);
    return bSurrogate || bTooLong || nCode > 0x10FFFF ? 0 : nSize;
}

/// Of one UTF-8 character.
bool IsControl(std::string_view sCharacter)
{
    const auto nLead = static_cast<unsigned char>(sCharacter.front());
    if (sCharacter.size() == 1)
        return nLead < 0x20 || nLead == 0x7F;
    return nLead == 0xC2 && static_cast<unsigned char>(sCharacter[1]) < 0xA0;
}

void AppendEscaped(std::string_view sBytes, std::string& rsText)
{
    constexpr std::string_view sDigits = "0123456789ABCDEF";
    for (const char c : sBytes) {
        const auto nByte = static_cast<unsigned char>(c);
        rsText += "\\x";
        rsText += sDigits[nByte >> 4U];
        rsText += sDigits[nByte & 0xFU];
    }
}
} // namespace

bool gIsUtf8(std::string_view sText)
{
    while (!sText.empty()) {
        const std::size_t nSize = CharacterSize(sText);
        if (nSize == 0)
            return false;
        sText.remove_prefix(nSize);
    }
    return true;
}

std::string gPrintable(std::string_view sText)
{
    std::string sPrintable;
    while (!sText.empty()) {
        const std::size_t nSize = CharacterSize(sText);
        const std::string_view sCharacter = sText.substr(0, nSize == 0 ? 1 : nSize);
        if (nSize == 0 || IsControl(sCharacter))
            AppendEscaped(sCharacter, sPrintable);
        else
            sPrintable += sCharacter;
        sText.remove_prefix(sCharacter.size());
    }
    return sPrintable;
}

std::string gQuoted(std::string_view sText)
{
    if (sText.size() <= kLongestQuote)
        return '"' + gPrintable(sText) + '"';
    std::size_t nCut = kLongestQuote;
    while (nCut > 0 && IsInsideCharacter(sText[nCut]))
        --nCut; // between two characters
    return '"' + gPrintable(sText.substr(0, nCut)) + "...\"";
}

} // namespace quorvawiz::cli
