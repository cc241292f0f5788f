#pragma once

#include <unicode/uchar.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// What a text type of marked UTF-8 must give, slow and obvious: byte by byte through the table of
/// lead bytes, with nothing of the code under test.
namespace model
{

inline unsigned ByteAt(std::string_view sText, std::size_t nAt)
{
    return nAt < sText.size() ? static_cast<unsigned char>(sText[nAt]) : 0U;
}

/// The unit that begins at a byte, and how many bytes it states to have.
struct TDecoded {
    char16_t chUnit;
    std::size_t nLength;
};

inline TDecoded Decode(std::string_view sText, std::size_t nAt)
{
    const unsigned b0 = ByteAt(sText, nAt), b1 = ByteAt(sText, nAt + 1),
                   b2 = ByteAt(sText, nAt + 2), b3 = ByteAt(sText, nAt + 3);
    const auto unit = [](unsigned nUnit) { return static_cast<char16_t>(nUnit % 0x10000); };
    if (b0 < 0x80) {
        return {unit(b0), 1};
    }
    if ((b0 & 32) == 0) {
        return {unit(b0 % 32 * 64 + b1 % 64), 2};
    }
    if ((b0 & 16) == 0) {
        return {unit(b0 % 16 * 4096 + b1 % 64 * 64 + b2 % 64), 3};
    }
    if ((b0 & 8) == 0) {
        return {unit(b1 % 16 * 4096 + b2 % 64 * 64 + b3 % 64), 4};
    }
    return {u'?', 1};
}

/// Tells whether stored bytes are UTF-8.
inline bool IsUtf8(std::string_view sStored)
{
    return ByteAt(sStored, 0) >= 0x80;
}

inline std::string_view Text(std::string_view sStored)
{
    return sStored.substr(sStored.starts_with('\x80') ? 1 : 0);
}

/// The stored form of the bytes of UTF-8: a marker where one is needed, and in front of a stray
/// byte that would be taken for one.
inline std::string Marked(const std::string& rsText)
{
    const bool bAscii =
        std::all_of(rsText.begin(), rsText.end(), [](char ch) { return (ch & 0x80) == 0; });
    return (!bAscii && ByteAt(rsText, 0) <= 0x80 ? "\x80" : "") + rsText;
}

/// The stored form of a piece of a stored text: of a plain one just its bytes.
inline std::string Piece(std::string_view sStored, std::size_t nFirst, std::size_t nCount)
{
    const std::string sPiece(Text(sStored).substr(nFirst, nCount));
    return IsUtf8(sStored) ? Marked(sPiece) : sPiece;
}

/// What ToWide gives of stored bytes.
inline std::u16string Wide(std::string_view sStored)
{
    const std::string_view sText = Text(sStored);
    std::u16string sWide;
    for (std::size_t nAt = 0; nAt < sText.size();) {
        if (!IsUtf8(sStored)) {
            sWide += static_cast<char16_t>(ByteAt(sText, nAt++));
            continue;
        }
        if (sText[nAt] == '\0') {
            break;
        }
        const TDecoded decoded = Decode(sText, nAt);
        sWide += decoded.chUnit;
        nAt += decoded.nLength;
    }
    return sWide;
}

/// What an iterator meets: the places of characters, which begin where no continuation byte is, and
/// their units.
struct TPlace {
    std::size_t nIndex;
    char16_t chUnit;
};

inline std::vector<TPlace> Places(std::string_view sStored)
{
    const std::string_view sText = Text(sStored);
    std::vector<TPlace> places;
    for (std::size_t nAt = 0; nAt < sText.size(); ++nAt) {
        const unsigned nByte = ByteAt(sText, nAt);
        if (!IsUtf8(sStored)) {
            places.push_back({nAt, static_cast<char16_t>(nByte)});
        } else if (nAt == 0 || nByte / 64 != 2) {
            places.push_back({nAt, Decode(sText, nAt).chUnit});
        }
    }
    return places;
}

inline char16_t Lower(char16_t chUnit)
{
    if (chUnit < 128) {
        return chUnit >= u'A' && chUnit <= u'Z' ? static_cast<char16_t>(chUnit + 32) : chUnit;
    }
    return static_cast<char16_t>(u_tolower(chUnit));
}

inline char16_t Upper(char16_t chUnit)
{
    if (chUnit < 128) {
        return chUnit >= u'a' && chUnit <= u'z' ? static_cast<char16_t>(chUnit - 32) : chUnit;
    }
    return static_cast<char16_t>(u_toupper(chUnit));
}

/// The lowered units of a text behind its marker, a zero among them as any other.
inline std::u16string Key(std::string_view sText)
{
    std::u16string sKey;
    for (std::size_t nAt = 0; nAt < sText.size();) {
        const TDecoded decoded = Decode(sText, nAt);
        sKey += Lower(decoded.chUnit);
        nAt += decoded.nLength;
    }
    return sKey;
}

/// The sign of a comparison without regard to case of two texts behind their markers.
inline int CompareNoCase(std::string_view sLeft, std::string_view sRight)
{
    const int nResult = Key(sLeft).compare(Key(sRight));
    return (nResult > 0) - (nResult < 0);
}

} // namespace model
