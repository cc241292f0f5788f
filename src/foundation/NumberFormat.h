#pragma once

#include "foundation/EngineeringFormatSettings.h"
#include "foundation/FormatOption.h"
#include "foundation/UnitScale.h"

#include <boost/logic/tribool.hpp>

#include <string>
#include <string_view>

class CStringU;

/// The most digits that the formatter gives; a greater count reads as this one. No finite double
/// has more than 767 that aren't 0.
inline constexpr unsigned kMostFormatDigits = 1'000'000;

/// Formats a number as an engineer writes it: 220u, 1.5k, -47p. Independent of the locale.
/// @param dValue the number. An infinity reads "inf" or "-inf", minus zero "-0"; NaN, which callers
///               exclude, reads "nan"; these three words stand alone, whatever the format
/// @param nDigits how many digits; 0 takes the settings' default
/// @param bSignificant true: count all digits, at least 3; false: count those after the point
/// @param bPadded true: a sign or blank in front, the point always there and in one column, blanks
///                behind, so that numbers line up
/// @param bRemoveTrailingZeroes whether zeros at the fraction's end go, and then a bare point;
///                              indeterminate takes the settings' default
/// @param eScale the scale; Undefined takes the settings' default. Where it has no suffix for the
///               magnitude, the number gets an exponent of at least three digits
/// @param bRemoveZeroExponents whether "e000" is left out; indeterminate takes the default
/// @return ASCII text
[[nodiscard]] std::string gFormatEngineering(double dValue, unsigned nDigits, bool bSignificant,
                                             bool bPadded, boost::tribool bRemoveTrailingZeroes,
                                             TeUnitScale eScale,
                                             boost::tribool bRemoveZeroExponents);

/// Formats a number by option codes. Without codes: significant digits, not padded, everything else
/// by the settings.
/// @param dValue the number
/// @param nDigits how many digits; 0 takes the settings' default
/// @param nOption1, nOption2, nOption3, nOption4, nOption5 codes of TFormatOption, applied in this
///        order, so that of two that contradict the last one wins; any other number does nothing
/// @return as gFormatEngineering
[[nodiscard]] std::string
gFormatEngineeringOptions(double dValue, unsigned nDigits, int nOption1 = TFormatOption::None,
                          int nOption2 = TFormatOption::None, int nOption3 = TFormatOption::None,
                          int nOption4 = TFormatOption::None, int nOption5 = TFormatOption::None);

/// Formats a number with no more digits than it takes to tell it from another: 3 to 29 of them.
/// @param dShown the number to format
/// @param dOther the number to tell it from
/// @param eScale the scale; Undefined takes the settings' default
/// @return the text of dShown; the text of dOther with 17 digits where no count tells them apart
[[nodiscard]] std::string gFormatDistinct(double dShown, double dOther, TeUnitScale eScale);

/// Formats a number as plain decimal text, with 18 significant digits and never with an exponent.
/// @param dValue the number; an infinity reads "inf" or "-inf", NaN "nan"
/// @return the text, without zeros at the fraction's end and without a point behind a whole number
[[nodiscard]] std::string gFormatPlain(double dValue);

/// Formats a number with all its digits: 18 significant ones in the SI scale, trailing zeros
/// removed, zero exponents by the settings.
/// @param dValue the number
/// @return as gFormatEngineering
[[nodiscard]] std::string gFormatFull(double dValue);

/// Reads a number with an optional exponent and one optional suffix: "1.5k", "10%", "3e-6meg".
/// Independent of the locale. Leading white space (9 to 13 and 32) is skipped, one sign is taken,
/// and of the mantissa the first 18 digits count, leading zeros among them. A suffix is percent, ft
/// (0.305), mi (2.54e-5), meg, or a letter: in SPICE style a f g k m n p t u x in either case; in
/// SI style E f G k M m n P p T u Y Z a y z x, where E M P Y Z a m p y z are exact. What follows
/// the suffix stays unread. A magnitude beyond 10^511 sets errno to ERANGE, and is no error.
/// @param pText zero-terminated; null reads as the empty text
/// @param rdResult receives the number, which may be infinite or 0 when the exponent is too big or
///                 too small; 0 when there is none
/// @param ppEnd if not null: receives the first character not used, which without a number is the
///              start of the text
/// @param bUseSi true for the suffixes of SI, false for those of SPICE
/// @return an empty text, or "Not a number"
std::string gParseEngineering(const char* pText, double& rdResult, const char** ppEnd, bool bUseSi);

/// Reads a number from 16-bit text; otherwise as the narrow form.
std::string gParseEngineering(const char16_t* pText, double& rdResult, const char16_t** ppEnd,
                              bool bUseSi);

/// Reads a number from the system's text; what follows it is ignored.
/// @param rText the text
/// @param rdResult receives the number, as gParseEngineering
/// @param bUseSi the style of suffixes; indeterminate takes the settings' default
/// @return an empty text, or "Not a number"
CStringU gParseEngineeringText(const CStringU& rText, double& rdResult, boost::tribool bUseSi);

/// Limits a count of significant digits to 1 to 18.
[[nodiscard]] int gClampDigits(int nDigits) noexcept;

/// Reads a count of significant digits that a user typed.
/// @param sText a decimal number of any size, perhaps behind white space and one sign
/// @return the number limited to 1 to 18; 4 for an empty text, and where anything follows it
[[nodiscard]] int gClampDigitsText(std::string_view sText) noexcept;

/// Limits a count of decimal places to 0 to 17.
[[nodiscard]] int gClampPlaces(int nPlaces) noexcept;

/// Reads a count of decimal places that a user typed.
/// @param sText a decimal number of any size, perhaps behind white space and one sign
/// @return the number limited to 0 to 17; 6 for an empty text, and where anything follows it
[[nodiscard]] int gClampPlacesText(std::string_view sText) noexcept;
