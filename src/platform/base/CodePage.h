#pragma once

#include "platform/base/CodePageNumbers.h"

#include <string>
#include <string_view>

/// The system's code page, in which CString holds its text (the platform's GetACP).
/// @return a known code page; UTF-8 until gSetSystemCodePage says otherwise
[[nodiscard]] unsigned gGetSystemCodePage() noexcept;

/// Sets the system's code page for the whole process. Texts that exist already keep their bytes.
/// @param nCodePage a known code page
/// @throws CInvalidArgException for an unknown one; the setting stays as it was
void gSetSystemCodePage(unsigned nCodePage);

/// Tells whether texts can be converted from and to a code page.
/// @param nCodePage the number of the code page
/// @return true for UTF-8, and for each code page that ICU has by the name "windows-N" or "cpN" and
///         in which ASCII bytes are ASCII characters; so false for UTF-16 and for EBCDIC
[[nodiscard]] bool gIsCodePageKnown(unsigned nCodePage);

/// Decodes 8-bit text.
/// @param sText the bytes; a NUL is a character like any other
/// @param nCodePage a known code page
/// @return the text in 16-bit units. Each ill-formed part and each undefined character gives one
///         U+FFFD; in UTF-8 the part is the longest one that could have begun a character
/// @throws CInvalidArgException for an unknown code page
[[nodiscard]] std::u16string gMultiByteToWide(std::string_view sText, unsigned nCodePage);

/// Encodes 16-bit text, without best fit: no character is taken for a look-alike.
/// @param sText the units; a NUL is a character like any other
/// @param nCodePage a known code page
/// @param chDefault stands in the place of each 16-bit unit that doesn't fit: so twice for a
///                  surrogate pair, once for a lone surrogate
/// @param pbReplaced if not null: set to true if a unit didn't fit, otherwise to false
/// @return the text in the code page
/// @throws CInvalidArgException for an unknown code page
[[nodiscard]] std::string gWideToMultiByte(std::u16string_view sText, unsigned nCodePage,
                                           char chDefault = '?', bool* pbReplaced = nullptr);

/// Lowers one 16-bit character by the simple mapping of Unicode, whatever the locale.
/// @param chChar a 16-bit unit; a surrogate stays as it is
[[nodiscard]] char16_t gToLowerWide(char16_t chChar) noexcept;

/// Raises one 16-bit character by the simple mapping of Unicode, whatever the locale.
/// @param chChar a 16-bit unit; a surrogate stays as it is, and so does a sharp s
[[nodiscard]] char16_t gToUpperWide(char16_t chChar) noexcept;
