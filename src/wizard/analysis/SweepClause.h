#pragma once

#include "platform/base/StringA.h"

/// How a sweep varies its parameter: the entries of the sweep dialog's first list, by index.
enum class ESweepType : int {
    NotUsed = -1, ///< there is no sweep
    Linear,
    Decade,
    Octave,
    List,
    Poi,
    Data,
    MonteCarlo,
    Optimization,
};

/// What a sweep varies: the entries of the sweep dialog's second list, by index.
enum class ESweepParameter : int { ModelParameter, Parameter, ParameterName, Source, Temperature };

/// The texts of a sweep. The types of sweep that vary no parameter use some edits for other things.
struct TSweepFields {
    CString msListOfValues;
    CString msStart;          ///< the data's name; the number of runs; the optimization's run name
    CString msStop;           ///< Poi: the number of points; the seed; the measurement results
    CString msNumberOfPoints; ///< in all, per decade, or per octave
    CString msIncrement;      ///< the name of the optimization's model
    CString msParameterName;
    CString msModelName;
};

/// All that a user has said about a sweep.
struct TSweepEntries {
    ESweepType type = ESweepType::NotUsed;
    ESweepParameter parameter = ESweepParameter::ModelParameter;
    TSweepFields fields{};
};

/// True for the types that vary a parameter.
bool gVariesParameter(ESweepType type);

/// The first text about the parameter that is missing, as a translatable message, or null.
const char* gMissingSweepParameter(const TSweepEntries& rEntries);

/// The first text that the type needs and that is missing, as a translatable message, or null.
const char* gMissingSweepValue(const TSweepEntries& rEntries);

/// The clause of a sweep with a prefix in front of it. Nothing is missing by then; a type of
/// `NotUsed` gives the prefix.
CString gComposeSweepClause(const CString& rsPrefix, const TSweepEntries& rEntries);
