#pragma once

#include "platform/base/StringA.h"

#include <array>
#include <cstddef>
#include <span>

/// How a parameter is defined, by the index of the entry that names it.
enum class EParameterType { General, MonteCarlo, Optimization };

inline constexpr std::size_t kParameterFields = 6;

/// What the user fills in to define a parameter.
struct TParameterFields {
    /// First to sixth. What each of them means depends on the type: the name is the second of a
    /// general parameter and the first of any other.
    std::array<CString, kParameterFields> mTexts;
    EParameterType mType = EParameterType::General;
    int mnDistribution = 0; ///< of a Monte Carlo parameter: an index into `kDistributions`
};

/// What is particular to a random distribution.
struct TDistribution {
    const char* pEntry;            ///< as the user sees it
    const char* pFunction;         ///< as it begins in the definition
    const char* pVariationLabel;   ///< the third field's, with the translation marker
    const char* pMissingVariation; ///< the message, with the translation marker
    bool bSigma;                   ///< whether it takes a sigma level, the fourth field
    const char* pBeforeMultiplier; ///< what parts the multiplier, the fifth field, from the text
                                   ///< before it; null: it takes none
};

inline constexpr const char* kRelativeVariation = "__$$Translatable$$_R&elative variation:";
inline constexpr const char* kAbsoluteVariation = "__$$Translatable$$_A&bsolute variation:";
inline constexpr const char* kMissingRelative = "__$$Translatable$$_Missing relative variation.";
inline constexpr const char* kMissingAbsolute = "__$$Translatable$$_Missing absolute variation.";

/// The distributions in the order of their entries.
inline constexpr std::array<TDistribution, 5> kDistributions{{
    {"Uniform (relative variation)", "=unif(", kRelativeVariation, kMissingRelative, false, ","},
    {"Uniform (absolute variation)", "=aunif(", kAbsoluteVariation, kMissingAbsolute, false, ","},
    {"Gaussian (relative variation)", "=gauss(", kRelativeVariation, kMissingRelative, true, ","},
    // Meant: nothing parts the multiplier from the sigma level.
    {"Gaussian (absolute variation)", "=agauss(", kAbsoluteVariation, kMissingAbsolute, true, ""},
    {"Random limit (absolute variation)", "=limit(", kAbsoluteVariation, kMissingAbsolute, false,
     nullptr},
}};

/// What differs between the two who write definitions.
struct TDefinitionWriter {
    const char* pBefore; ///< what stands before the parameter's name
    bool bAlwaysCloses;  ///< whether an optimization parameter without a delta has its parenthesis
                         ///< closed
};

/// Writes a command with one definition. Meant: without a delta the parenthesis stays open.
inline constexpr TDefinitionWriter kDirectCommand{".param ", false};
/// Writes an entry of the list.
inline constexpr TDefinitionWriter kListEntry{"", true};

/// The fields, as indexes into `mTexts`, without which there is nothing to be added to the list.
std::span<const std::size_t> gNeededFields(const TParameterFields& rFields);

/// Writes the definition into `rsText`.
/// Result: null, or the message of the check that failed, with the translation marker. Then the
/// text is as it was, except that a Monte Carlo parameter leaves its beginning and its name when it
/// has one.
const char* gDefineParameter(const TParameterFields& rFields, const TDefinitionWriter& rWriter,
                             CString& rsText);
