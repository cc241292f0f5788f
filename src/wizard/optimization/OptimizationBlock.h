#pragma once

#include "platform/base/StringA.h"
#include "wizard/optimization/AlgorithmKeys.h"

#include <array>

// The text of an optimization, from the fields of the wizard's steps as they stand. Nothing here
// trims or checks.

/// A measurement that is to reach a value. Minimum value and weight may be empty.
struct TOptimizationGoal {
    CString msMeasurement;
    CString msTarget;
    CString msMinimumValue;
    CString msWeight;
};

/// The limits of a parameter. Delta and guess may be empty.
struct TParameterLimits {
    CString msName;
    CString msMinimum;
    CString msMaximum;
    CString msDelta;
    CString msGuess;
};

/// The model of the algorithm. An empty value leaves its key out.
struct TAlgorithm {
    CString msName;
    std::array<CString, kAlgorithmKeys.size()> mValues; ///< in the order of the keys
};

/// "delay=1n minval=1e-12 weight=1".
CString gGoalItem(const TOptimizationGoal& rGoal);

/// "w minval=1u maxval=5u guess=2u".
CString gLimitsItem(const TParameterLimits& rLimits);

/// The analyses by name, as translatable literals.
inline constexpr const char* kAnalysisNames[] = {
    "__$$Translatable$$_First AC Analysis", "__$$Translatable$$_First DC Analysis",
    "__$$Translatable$$_First Transient Analysis", "__$$Translatable$$_First .step Analysis"};

/// What stands for the analysis of this name in the command: "ac", "dc", "tran", "step" for the
/// English names above, to the letter; any other text is its own name.
CString gAnalysisKeyword(const CString& rsName);

/// ".model" and the keys that have a value, five to a line.
CString gAlgorithmModel(const TAlgorithm& rAlgorithm);

/// What a command block is made of.
struct TOptimization {
    CString msName;
    CString msAnalysisName; ///< as chosen or typed
    CString msGoalLines;    ///< goal items, each behind a line feed
    CString msLimitsLines;  ///< limits items, each behind a line feed
    TAlgorithm mAlgorithm;
};

/// ".optimize", ".paramlimits", ".optgoal" and ".model", lines joined by CR LF.
CString gOptimizationBlock(const TOptimization& rOptimization);
