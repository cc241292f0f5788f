#pragma once

#include <concepts>
#include <string_view>

class CStringA;

/// What the operators of CStringA take on their other side: a CStringA, or what reads as 8-bit text
/// (a literal, a const char*, a std::string, a std::string_view). Not a class that derives from
/// CStringA, whose text may be other than its bytes.
template <class T>
concept CStringAOperand = std::same_as<T, CStringA> ||
    (std::convertible_to<const T&, std::string_view> && !std::derived_from<T, CStringA>);

/// A view of a zero-terminated text of any unit.
/// @param pText null reads as the empty text
/// @return valid as long as the text is
template <class TUnit>
[[nodiscard]] constexpr std::basic_string_view<TUnit> gViewOf(const TUnit* pText) noexcept
{
    return pText != nullptr ? std::basic_string_view<TUnit>(pText)
                            : std::basic_string_view<TUnit>();
}

/// The bytes of an operand.
/// @param rText the operand; a null pointer reads as the empty text
/// @return a view of it, valid as long as the operand is
template <CStringAOperand T> [[nodiscard]] std::string_view gOperandView(const T& rText) noexcept
{
    if constexpr (std::convertible_to<const T&, const char*>) {
        return gViewOf<char>(rText);
    } else {
        return rText;
    }
}

/// One byte as an operand.
/// @param rchChar the byte
/// @return a view of it, valid as long as the byte is
[[nodiscard]] inline std::string_view gOperandView(const char& rchChar) noexcept
{
    return {&rchChar, 1};
}
