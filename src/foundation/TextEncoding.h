#pragma once

#include <string_view>

/// How text stands in a file. The values are part of the interface.
enum TTextEncoding {
    EncodingAnsi = 0,              ///< 8-bit text in the system's code page
    EncodingUtf8 = 1,              ///< UTF-8
    EncodingUtf16 = 2,             ///< UTF-16, low byte first
    EncodingUtf16BigEndian = 3,    ///< UTF-16, high byte first
    EncodingUtf8Bom = 4,           ///< UTF-8 behind its mark
    EncodingUtf16Bom = 5,          ///< UTF-16, low byte first, behind its mark
    EncodingUtf16BigEndianBom = 6, ///< UTF-16, high byte first, behind its mark
};

/// The mark that an encoding puts in front of the text, perhaps empty.
[[nodiscard]] std::string_view gMarkOf(TTextEncoding encoding) noexcept;

/// Tells whether the high byte of a character stands first.
[[nodiscard]] constexpr bool gIsBigEndian(TTextEncoding encoding) noexcept
{
    return encoding == EncodingUtf16BigEndian || encoding == EncodingUtf16BigEndianBom;
}

/// Tells whether a character is two bytes.
[[nodiscard]] constexpr bool gHasTwoByteUnits(TTextEncoding encoding) noexcept
{
    return encoding == EncodingUtf16 || encoding == EncodingUtf16Bom || gIsBigEndian(encoding);
}

/// How many bytes gDetectEncoding looks at.
inline constexpr unsigned kDetectedBytes = 3;

/// Tells the encoding from the first bytes of a file: by its mark, or by the zero byte that the
/// first character has in UTF-16 when it is of the low range.
/// @param sFirst the first kDetectedBytes bytes of the file, or all of a shorter one
/// @param whenUnknown the result for anything else
[[nodiscard]] TTextEncoding gDetectEncoding(std::string_view sFirst,
                                            TTextEncoding whenUnknown) noexcept;
