#pragma once

#include <optional>
#include <string_view>

/// How a number's magnitude is written. The values are those that settings and callers store.
enum class TeUnitScale : int {
    Si = 0,          ///< a letter suffix of the SI table
    Spice = 1,       ///< a letter suffix of the SPICE table, X for mega
    HSpice = 2,      ///< a letter suffix of the SPICE table, MEG for mega
    Scientific = 3,  ///< one digit before the point, and an exponent
    Engineering = 4, ///< one to three digits before the point, the exponent a multiple of 3
    Undefined = 5,   ///< take the default of the settings
};

/// The scale of a stored number.
/// @param nScale any number
/// @return the scale; Undefined for everything outside 0 to 4
[[nodiscard]] TeUnitScale gNormalizeUnitScale(int nScale) noexcept;

/// The permanent key of a scale, as settings store it.
/// @param eScale any value; one outside 0 to 4 reads as Undefined
/// @return "si", "spice", "hspice", "scientific", "engineering" or "undefined"
[[nodiscard]] std::string_view gGetUnitScaleKey(TeUnitScale eScale) noexcept;

/// The name of a scale, as a user sees it.
/// @param eScale any value; one outside 0 to 4 reads as Undefined
/// @return "SI", "Spice", "HSpice", "Scientific", "Engineering" or "Undefined"
[[nodiscard]] std::string_view gGetUnitScaleDisplayText(TeUnitScale eScale) noexcept;

/// The scale that a key names.
/// @param sKey a key, exact
/// @return the scale, perhaps Undefined; nullopt for a text that is no key
[[nodiscard]] std::optional<TeUnitScale> gFindUnitScale(std::string_view sKey) noexcept;

/// The suffix that stands for a power of ten.
/// @param eScale any value
/// @param nExponent a multiple of 3
/// @return the suffix, one blank for 0; nullopt where the scale has none, so that the number needs
///         an exponent
[[nodiscard]] std::optional<std::string_view> gGetUnitSuffix(TeUnitScale eScale,
                                                             int nExponent) noexcept;
