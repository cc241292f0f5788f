#pragma once

#include <cstddef>

/// The suffix of a number.
struct TParsedSuffix {
    int mnExponent = 0;       ///< the power of ten that it stands for
    double mdFactor = 1;      ///< what it multiplies with besides
    std::size_t mnLength = 0; ///< how many characters it takes, 0 where there is none
};

/// Reads the suffix at the start of a text.
/// @param pText zero-terminated
/// @param bUseSi true for the suffixes of SI, false for those of SPICE
template <class TChar>
[[nodiscard]] TParsedSuffix gParseSuffix(const TChar* pText, bool bUseSi) noexcept;

extern template TParsedSuffix gParseSuffix(const char*, bool) noexcept;
extern template TParsedSuffix gParseSuffix(const char16_t*, bool) noexcept;
