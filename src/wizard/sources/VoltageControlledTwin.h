#pragma once

#include "wizard/sources/SourceHead.h"

// The controls of the pages of voltage-controlled sources, and all that differs between the two.

namespace VoltageControlled
{
enum EControlId {
    kSourceGroup = kFirstSourceField,
    kModeGroup,
    kLinear, ///< the radio buttons of the mode stand together
    kPolynomial,
    kExpression,
    kFirstControl,
    kSecondControl,
    kGain,
    kCoefficients,
    kSecondPositive, ///< the further pairs stand together
    kSecondNegative,
    kThirdPositive,
    kThirdNegative,
};

// What the modes show in each other's place.
inline constexpr unsigned kLinearLayer = 1;
inline constexpr unsigned kPolynomialLayer = 2;
inline constexpr unsigned kExpressionLayer = 4;

/// A label: a translatable literal, or an empty one, and what is put behind it untranslated.
struct TLabel {
    const char* pLiteral = "";
    const char* pTail = "";
};

/// What a mode asks for.
struct TMode {
    unsigned nLayer;
    const char* pMissingName;
    const char* pFirstControl;
    const char* pSecondControl; ///< null: the label stays that of the template
    const char* pGain = "";     ///< of the gain or the coefficients
    TLabel furtherPairs[4] = {};
};

/// What differs between the pages.
struct TTwin {
    char chLetter; ///< of the source's line
    const char* pGroup;
    const char* pNameLabel;
    const char* pMissingPositive;
    const char* pMissingGain;
    TMode linear;
    TMode polynomial;
    TMode expression;
    unsigned nSecondControlLayers; ///< 0: all
    const char* pFirstExpression;
    const char* pSecondExpression; ///< null: the second control isn't used
    const char* pMissingExpression;
    /// A failed check of the expression mode reports and then counts as a success.
    bool bFailedExpressionSucceeds;
};

inline constexpr const char* kControllingPositive =
    "__$$Translatable$$_&Controlling positive terminal:";
inline constexpr const char* kControllingNegative =
    "__$$Translatable$$_Con&trolling negative terminal (GND):";
inline constexpr const char* kPolynomialCoefficients =
    "__$$Translatable$$_Pol&ynomial coefficients:";
inline constexpr const char* kMissingVCCSName =
    "__$$Translatable$$_Missing voltage-controlled current source name.";
inline constexpr const char* kMissingVCVSName =
    "__$$Translatable$$_Missing voltage-controlled voltage source name.";

inline constexpr TTwin kCurrent{
    .chLetter = 'G',
    .pGroup = "Voltage-controlled current source",
    .pNameLabel = "&VCCS name:",
    .pMissingPositive = "__$$Translatable$$_Missing controlled positive terminal name.",
    .pMissingGain = "__$$Translatable$$_Missing transconductance.",
    .linear = {.nLayer = kLinearLayer,
               .pMissingName = kMissingVCCSName,
               .pFirstControl = kControllingPositive,
               .pSecondControl = kControllingNegative,
               .pGain = "__$$Translatable$$_T&ransconductance (in 1/Ohm):"},
    .polynomial =
        {.nLayer = kPolynomialLayer,
         // Meant: without a full stop.
         .pMissingName = "__$$Translatable$$_Missing voltage-controlled current source name",
         .pFirstControl = kControllingPositive,
         .pSecondControl = kControllingNegative,
         .pGain = kPolynomialCoefficients,
         .furtherPairs = {{"__$$Translatable$$_Controllin&g positive terminal #2:"},
                          {"__$$Translatable$$_Controlling negative ter&minal #2 (GND):"},
                          {"__$$Translatable$$_Controlling po&sitive terminal #3:"},
                          {"__$$Translatable$$_Controlling negative termin&al #3 (GND):"}}},
    .expression = {.nLayer = kExpressionLayer,
                   .pMissingName = kMissingVCCSName,
                   .pFirstControl = "__$$Translatable$$_C&urrent expression:",
                   .pSecondControl = "__$$Translatable$$_C&harge expression:"},
    .nSecondControlLayers = 0,
    .pFirstExpression = " cur='",
    .pSecondExpression = " chg='",
    .pMissingExpression = "__$$Translatable$$_Missing current or charge expression.",
    .bFailedExpressionSucceeds = true,
};

inline constexpr TTwin kVoltage{
    .chLetter = 'E',
    .pGroup = "Voltage-controlled voltage source",
    .pNameLabel = "&VCVS name:",
    .pMissingPositive = kMissingPositiveTerminal,
    .pMissingGain = "__$$Translatable$$_Missing voltage gain.",
    .linear = {.nLayer = kLinearLayer,
               .pMissingName = kMissingVCVSName,
               .pFirstControl = kControllingPositive,
               .pSecondControl = nullptr,
               .pGain = "__$$Translatable$$_Volt&age gain:"},
    .polynomial =
        {.nLayer = kPolynomialLayer,
         .pMissingName = kMissingVCVSName,
         .pFirstControl = kControllingPositive,
         .pSecondControl = nullptr,
         .pGain = kPolynomialCoefficients,
         // Meant: the numbers aren't translated here.
         .furtherPairs = {{"__$$Translatable$$_Controllin&g positive terminal", " #2:"},
                          {"__$$Translatable$$_Controlling negative ter&minal", " #2 (GND):"},
                          {"__$$Translatable$$_Controlling po&sitive terminal", " #3:"},
                          {"__$$Translatable$$_Controlling negative termin&al", " #3 (GND):"}}},
    .expression = {.nLayer = kExpressionLayer,
                   .pMissingName = kMissingVCVSName,
                   .pFirstControl = "__$$Translatable$$_Volt&age expression:",
                   .pSecondControl = nullptr},
    .nSecondControlLayers = kLinearLayer | kPolynomialLayer,
    .pFirstExpression = " vol='",
    .pSecondExpression = nullptr,
    .pMissingExpression = "__$$Translatable$$_Missing voltage expression.",
    .bFailedExpressionSucceeds = false,
};
} // namespace VoltageControlled
