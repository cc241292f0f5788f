#pragma once

#include "platform/base/Ascii.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace quorvawiz::ngspice
{

/// Cuts the first line off a text.
/// @param rsRest the text; what stands behind the line's end stays
/// @return the line without its end, LF or CR LF; empty for an empty text
inline std::string_view gNextLine(std::string_view& rsRest) noexcept
{
    const std::size_t nEnd = rsRest.find('\n');
    std::string_view sLine = rsRest.substr(0, nEnd);
    rsRest.remove_prefix(nEnd == std::string_view::npos ? rsRest.size() : nEnd + 1);
    if (sLine.ends_with('\r')) {
        sLine.remove_suffix(1);
    }
    return sLine;
}

/// Tells whether a byte is white space, as the C locale has it.
constexpr bool gIsBlank(char c) noexcept
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// A text without the white space at both ends.
constexpr std::string_view gTrimmed(std::string_view sText) noexcept
{
    while (!sText.empty() && gIsBlank(sText.front())) {
        sText.remove_prefix(1);
    }
    while (!sText.empty() && gIsBlank(sText.back())) {
        sText.remove_suffix(1);
    }
    return sText;
}

/// Cuts the first word off a text: bytes up to white space.
/// @param rsRest the text; the white space in front of the word goes, too
/// @return the word; empty if there is none
constexpr std::string_view gNextWord(std::string_view& rsRest) noexcept
{
    while (!rsRest.empty() && gIsBlank(rsRest.front())) {
        rsRest.remove_prefix(1);
    }
    std::size_t nEnd = 0;
    while (nEnd < rsRest.size() && !gIsBlank(rsRest[nEnd])) {
        ++nEnd;
    }
    const std::string_view sWord = rsRest.substr(0, nEnd);
    rsRest.remove_prefix(nEnd);
    return sWord;
}

/// Tells whether a text holds a word, in any case.
/// @param sText any bytes
/// @param sWord in lower case
inline bool gHoldsNoCase(std::string_view sText, std::string_view sWord) noexcept
{
    const auto isSame = [](char cText, char cWord) { return gToLowerAscii(cText) == cWord; };
    return std::search(sText.begin(), sText.end(), sWord.begin(), sWord.end(), isSame) !=
           sText.end();
}

} // namespace quorvawiz::ngspice
