#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// How a CStringU stores its text: 7-bit text as it is, any other as UTF-8 whose first byte has its
/// top bit set, for which the marker stands in front of a first byte that hasn't. Everything that
/// writes stored bytes goes through here.

/// The byte in front of UTF-8 whose first character is ASCII. It can begin no UTF-8 sequence.
inline constexpr char kUtf8Marker = '\x80';

/// The text behind the marker.
/// @param sStored the bytes as a CStringU stores them
[[nodiscard]] constexpr std::string_view gBehindMarker(std::string_view sStored) noexcept
{
    return sStored.substr(!sStored.empty() && sStored.front() == kUtf8Marker ? 1 : 0);
}

/// Tells whether stored bytes are UTF-8: the first one has its top bit set.
[[nodiscard]] constexpr bool gIsStoredUtf8(std::string_view sStored) noexcept
{
    return !sStored.empty() && (static_cast<unsigned char>(sStored.front()) & 0x80U) != 0;
}

/// Tells whether UTF-8 needs the marker in front of it: its first byte is 7-bit or, in malformed
/// text, is itself the byte that would be taken for the marker.
/// @param sUtf8 the bytes, at least one of them not 7-bit
[[nodiscard]] constexpr bool gNeedsMarker(std::string_view sUtf8) noexcept
{
    return !sUtf8.empty() && static_cast<unsigned char>(sUtf8.front()) <= 0x80U;
}

/// Puts the bytes of a text into the stored form.
/// @param sText the bytes, without a marker
[[nodiscard]] std::string gStoreMarked(std::string_view sText);

/// Puts the marker in front of the bytes of a text where they need it.
/// @param rsText the bytes, without a marker; becomes the stored form
void gMark(std::string& rsText);

/// Encodes a text into the stored form, into a buffer of the exact size.
/// @param sText the units; what stands behind a zero is left out
[[nodiscard]] std::string gStoreWide(std::u16string_view sText);

/// Encodes a text into the stored form, zeros included.
/// @param sText the units
[[nodiscard]] std::string gStoreUnits(std::u16string_view sText);

/// Takes bytes that are said to be UTF-8, perhaps with a marker already: the marker is put in front
/// of a first byte of 1 to 127, also where all bytes are 7-bit.
/// @param sUtf8 the bytes, none of them of rsStored
/// @param rsStored takes the stored form in place of what it held
void gStoreUtf8(std::string_view sUtf8, std::string& rsStored);

/// Appends a stored text to a stored text. 7-bit text that takes on UTF-8 gets the marker.
/// @param rsStored the text to append to
/// @param sStored the other one, which may be the same
void gAppendStored(std::string& rsStored, std::string_view sStored);

/// Puts bytes of UTF-8, perhaps cut inside a character, in the place of as many of a stored text,
/// which gets longer where they go past its end. The rest of the text isn't touched, so writing a
/// text block by block takes no more time than its length asks for. A text that begins with a zero
/// gets no marker, as for gStoreUtf8.
/// @param rsStored the text
/// @param nFirst the first byte to go, behind the marker; past the end is the end
/// @param sBytes the bytes, none of them of rsStored
void gOverwriteStored(std::string& rsStored, std::size_t nFirst, std::string_view sBytes);

/// Cuts a stored text, perhaps inside a character, or lengthens it with zeros.
/// @param rsStored the text
/// @param nSize its new size in bytes behind the marker
void gResizeStored(std::string& rsStored, std::size_t nSize);
