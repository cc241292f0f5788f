#include "foundation/ParseSuffix.h"

#include "platform/base/Ascii.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace
{

/// The suffixes that both styles have, read in either case and before the single letters.
struct TWord {
    std::string_view msWord;
    int mnExponent;
    double mdFactor;
};

constexpr std::array<TWord, 5> kWords{{
    {"%", -2, 1},
    {"ft", 0, 0.305},
    {"meg", 6, 1},
    {"mi", 0, 2.54e-5}, // of "mil", whose last letter stays unread
    {"x", 6, 1},
}};

struct TLetter {
    char mchLetter;
    int mnExponent;
};

/// In small letters: either case is read.
constexpr std::array<TLetter, 9> kSpiceLetters{{
    {'a', -18},
    {'f', -15},
    {'g', 9},
    {'k', 3},
    {'m', -3},
    {'n', -9},
    {'p', -12},
    {'t', 12},
    {'u', -6},
}};

/// Exact: a letter of which both cases are read stands there twice.
constexpr std::array<TLetter, 23> kSiLetters{{
    {'E', 18}, {'e', 18}, {'f', -15}, {'F', -15}, {'G', 9},   {'g', 9},   {'k', 3},   {'K', 3},
    {'M', 6},  {'m', -3}, {'N', -9},  {'n', -9},  {'P', 15},  {'p', -12}, {'T', 12},  {'t', 12},
    {'U', -6}, {'u', -6}, {'Y', 24},  {'Z', 21},  {'a', -18}, {'y', -24}, {'z', -21},
}};

/// A character as ASCII; NUL where it is none.
template <class TChar> char AsAscii(TChar chChar)
{
    return chChar > 0 && chChar < 0x80 ? static_cast<char>(chChar) : '\0';
}

template <class TChar> bool BeginsWith(const TChar* pText, std::string_view sSmallLetters)
{
    // The text's NUL equals no letter, so that nothing behind it is read.
    return std::ranges::all_of(sSmallLetters, [&pText](char chLetter) {
        return gToLowerAscii(AsAscii(*pText++)) == chLetter;
    });
}

} // namespace

template <class TChar> TParsedSuffix gParseSuffix(const TChar* pText, bool bUseSi) noexcept
{
    for (const TWord& rWord : kWords) {
        if (BeginsWith(pText, rWord.msWord)) {
            return {rWord.mnExponent, rWord.mdFactor, rWord.msWord.size()};
        }
    }
    const char chLetter = bUseSi ? AsAscii(*pText) : gToLowerAscii(AsAscii(*pText));
    const std::span<const TLetter> letters =
        bUseSi ? std::span<const TLetter>(kSiLetters) : std::span<const TLetter>(kSpiceLetters);
    const auto found = std::ranges::find(letters, chLetter, &TLetter::mchLetter);
    return found != letters.end() ? TParsedSuffix{found->mnExponent, 1, 1} : TParsedSuffix{};
}

template TParsedSuffix gParseSuffix(const char*, bool) noexcept;
template TParsedSuffix gParseSuffix(const char16_t*, bool) noexcept;
