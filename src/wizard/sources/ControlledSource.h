#pragma once

#include "platform/base/StringA.h"

// What the pages of sources share that follow currents, and of those that follow voltages.

inline constexpr const char* kMissingPolynomialCoefficients =
    "__$$Translatable$$_Missing polynomial coefficients.";

/// Appends what stands behind "POLY(": the number of the controls, 1 to 3, with the parenthesis
/// that closes it, the controls, and the lines of coefficients joined.
void gAppendPolynomial(CString& rsLine, int nControls, const CString& rsControls,
                       const CString& rsCoefficients);
