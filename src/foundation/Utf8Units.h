#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// 16-bit units in the bytes of a CStringU: each unit is a sequence of one to three bytes of its
/// own, so a character above U+FFFF is two sequences, one per surrogate. Reading is lenient: any
/// bytes give units, and nothing is read behind the end of the text.

/// Tells whether a byte only continues a sequence: its top two bits are 10.
[[nodiscard]] constexpr bool gIsContinuation(char chByte) noexcept
{
    return (static_cast<unsigned char>(chByte) & 0xC0U) == 0x80U;
}

/// The length that a lead byte states.
/// @param chByte any byte; a continuation byte is taken as its bits say
/// @return 1 to 4, in bytes
[[nodiscard]] constexpr std::size_t gSequenceLength(char chByte) noexcept
{
    const auto nByte = static_cast<unsigned char>(chByte);
    if ((nByte & 0x80U) == 0) {
        return 1;
    }
    if ((nByte & 0x20U) == 0) {
        return 2;
    }
    if ((nByte & 0x10U) == 0) {
        return 3;
    }
    return (nByte & 0x08U) == 0 ? 4 : 1;
}

/// Decodes one unit and moves on.
/// @param sText the bytes, without the marker
/// @param rnIndex where the sequence begins, in bytes; moves by the length that its first byte
///                states, perhaps past the end. It stays at a zero byte and at the end
/// @return the unit; 0 at a zero byte and at or past the end. Trail bytes that aren't there read as
///         0, of four bytes only the low 16 bits are kept, and 0xF8 to 0xFF are a question mark
[[nodiscard]] char16_t gDecodeUnit(std::string_view sText, std::size_t& rnIndex) noexcept;

/// The index of the next character: behind this byte and the continuation bytes that follow it.
/// @param sText the bytes, without the marker
/// @param nIndex in bytes
/// @return at most sText.size()
[[nodiscard]] std::size_t gNextCharacter(std::string_view sText, std::size_t nIndex) noexcept;

/// The index of the character before: back over continuation bytes, four bytes at most.
/// @param sText the bytes, without the marker
/// @param nIndex in bytes, at most sText.size()
/// @return 0 at the beginning
[[nodiscard]] std::size_t gPreviousCharacter(std::string_view sText, std::size_t nIndex) noexcept;

/// The index at which the sequence begins that a byte belongs to when the text is decoded from its
/// beginning. In well-formed text that is a character; in malformed text it may be other than what
/// a look back over continuation bytes tells.
/// @param sText the bytes, without the marker
/// @param nIndex in bytes, at most sText.size()
/// @return at most nIndex
[[nodiscard]] std::size_t gSequenceStart(std::string_view sText, std::size_t nIndex) noexcept;

/// Decodes a text up to its end or the first zero byte at which a sequence would begin.
/// @param sText the bytes, without the marker
/// @return the units
[[nodiscard]] std::u16string gDecodeUnits(std::string_view sText);

/// What a text of 16-bit units takes when each unit is encoded by itself.
struct TMeasuredUnits {
    std::size_t nUnits = 0; ///< how many units, up to the first zero
    std::size_t nBytes = 0; ///< their size in bytes, without a marker; nUnits if all are ASCII
};

/// Measures a text up to its end or its first zero.
/// @param sText the units
/// @return how much of it counts, and how long it gets
[[nodiscard]] TMeasuredUnits gMeasureUnits(std::u16string_view sText) noexcept;

/// Encodes each unit by itself.
/// @param sText the units
/// @param pOut room for all their bytes; see gMeasureUnits. A zero has one
/// @return behind the last byte written
char* gEncodeUnits(std::u16string_view sText, char* pOut) noexcept;

/// Swaps the two bytes of each unit, for text whose high byte comes first.
/// @param sText the units
/// @return the swapped units
[[nodiscard]] std::u16string gSwapUnitBytes(std::u16string_view sText);
