#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The character in the place of what isn't valid.
inline constexpr char16_t kReplacement = 0xFFFD;

/// One code page in which every byte below 0x80 that starts a character is that ASCII character.
/// It goes character by character, so that a caller can decide what becomes of each misfit.
/// What it does in a call leaves no trace for the next one.
class ICodec
{
public:
    ICodec() = default;
    ICodec(const ICodec&) = delete;
    ICodec& operator=(const ICodec&) = delete;
    virtual ~ICodec() = default;

    /// Decodes the first character of a text.
    /// @param rsRest not empty; its first character is cut off, or else its first ill-formed part:
    ///               at least one byte
    /// @param rsOut the 16-bit units of the character are appended; nothing for an ill-formed part
    /// @return false for an ill-formed part
    virtual bool DecodeNext(std::string_view& rsRest, std::u16string& rsOut) const = 0;

    /// Encodes the first character of a text.
    /// @param rsRest not empty; one unit is cut off, or two units where they are a surrogate pair
    /// @param rsOut the bytes of the character are appended; nothing if it doesn't fit
    /// @return false if the code page has no such character; a lone surrogate never fits
    virtual bool EncodeNext(std::u16string_view& rsRest, std::string& rsOut) const = 0;
};

/// The codec of a code page. The first call for a code page other than UTF-8 may load tables.
/// @param nCodePage the number of the code page
/// @return the codec, which lives as long as the process; null if there is no such code page
[[nodiscard]] const ICodec* gFindCodec(unsigned nCodePage);

/// The units of the first character: 2 for a surrogate pair, otherwise 1.
/// @param sText not empty
[[nodiscard]] constexpr std::size_t gCountFirstUnits(std::u16string_view sText) noexcept
{
    const bool bPair =
        sText.size() > 1 && (sText[0] & 0xFC00) == 0xD800 && (sText[1] & 0xFC00) == 0xDC00;
    return bPair ? 2 : 1;
}
