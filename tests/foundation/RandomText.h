#pragma once

#include <array>
#include <cstddef>
#include <random>
#include <string>

/// How many rounds a random test of the foundation runs.
inline constexpr int kRandomRounds = QUORVAWIZ_LONG_RUNS ? 10'000'000 : 100'000;

/// Draws texts from few characters, so that equal ones meet often: letters of both cases,
/// characters of each sequence length, white space, quotes and a surrogate pair.
class CRandomText
{
public:
    /// @param nSeed the same seed gives the same texts
    explicit CRandomText(unsigned nSeed) : mEngine(nSeed) {}

    /// A number from 0 to nMost.
    int Number(int nMost) { return std::uniform_int_distribution<int>(0, nMost)(mEngine); }

    /// One character.
    char16_t Unit()
    {
        static constexpr std::array<char16_t, 24> kUnits{
            u'a', u'b', u'A', u'B',  u'z',  u'1',  u' ',  u'\t',  u'"',   u'[',   u'?',   0x7F,
            0x80, 0xC9, 0xE9, 0x7FF, 0x800, 0x3A9, 0x3C9, 0x2007, 0x201C, 0xD83D, 0xDE00, 0xFFFF};
        return kUnits[static_cast<std::size_t>(Number(kUnits.size() - 1))];
    }

    /// A text of up to nMost characters; every second one is of ASCII alone.
    std::u16string Text(int nMost)
    {
        const bool bAscii = Number(1) == 0;
        std::u16string sText;
        for (int nCount = Number(nMost); nCount > 0; --nCount) {
            char16_t chUnit = Unit();
            while (bAscii && chUnit >= 0x80) {
                chUnit = Unit();
            }
            sText += chUnit;
        }
        return sText;
    }

    /// Any bytes, most of them such as stand in UTF-8.
    std::string Bytes(int nMost)
    {
        static constexpr std::array<int, 12> kBytes{0,    'a',  'A',  0x80, 0x81, 0xA9,
                                                    0xC1, 0xC3, 0xE2, 0xED, 0xF0, 0xF8};
        std::string sBytes;
        for (int nCount = Number(nMost); nCount > 0; --nCount) {
            const int nByte = Number(3) == 0
                                  ? Number(255)
                                  : kBytes[static_cast<std::size_t>(Number(kBytes.size() - 1))];
            sBytes += static_cast<char>(nByte);
        }
        return sBytes;
    }

private:
    std::mt19937 mEngine;
};
