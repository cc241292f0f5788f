#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// What the rules for paths share, on 16-bit text: there each character has one place, whatever the
/// bytes were that it came from.

/// Where a search found nothing.
inline constexpr std::size_t kNowhere = std::u16string_view::npos;

/// Both separators.
inline constexpr std::u16string_view kSlashes = u"\\/";

/// What ends the part of a path in front of a file's own name.
inline constexpr std::u16string_view kNameEnds = u"\\/:";

/// Tells whether a character is one of the two separators.
[[nodiscard]] constexpr bool gIsSlash(char16_t chChar) noexcept
{
    return chChar == u'\\' || chChar == u'/';
}

/// Tells whether a text has a slash at a place; false behind its end.
[[nodiscard]] constexpr bool gHasSlashAt(std::u16string_view sText, std::size_t nAt) noexcept
{
    return nAt < sText.size() && gIsSlash(sText[nAt]);
}

/// Tells whether a text ends in a slash.
[[nodiscard]] constexpr bool gEndsInSlash(std::u16string_view sText) noexcept
{
    return !sText.empty() && gIsSlash(sText.back());
}

/// Tells whether a text begins with a drive: any character and a colon.
[[nodiscard]] constexpr bool gHasDrive(std::u16string_view sText) noexcept
{
    return sText.size() >= 2 && sText[1] == u':';
}

/// Tells whether a text begins with two slashes.
[[nodiscard]] constexpr bool gHasTwoSlashes(std::u16string_view sText) noexcept
{
    return gHasSlashAt(sText, 0) && gHasSlashAt(sText, 1);
}

/// The length of "\\server\share", for a text that begins with two slashes.
/// @return the place of the slash behind the share; kNowhere if there is none
[[nodiscard]] constexpr std::size_t gFindShareEnd(std::u16string_view sText) noexcept
{
    const std::size_t nServerEnd = sText.find_first_of(kSlashes, 2);
    return nServerEnd == kNowhere ? kNowhere : sText.find_first_of(kSlashes, nServerEnd + 1);
}

/// The length of the head of a path: of its drive, or of "\\server\share" with a slash behind it.
/// @return 0 without a head; kNowhere for two slashes where no slash stands behind a share
[[nodiscard]] constexpr std::size_t gHeadLength(std::u16string_view sPath) noexcept
{
    if (gHasTwoSlashes(sPath)) {
        return gFindShareEnd(sPath);
    }
    return gHasDrive(sPath) ? 2 : 0;
}
