#include "wizard/analysis/SweepClause.h"

#include "wizard/frame/PageText.h"

#include <string_view>

namespace
{
const char* MissingRange(const TSweepFields& rFields)
{
    if (rFields.msStart.IsEmpty())
        return "__$$Translatable$$_Missing start value.";
    if (rFields.msStop.IsEmpty())
        return "__$$Translatable$$_Missing stop value.";
    return nullptr;
}

CString ParameterClause(const TSweepEntries& rEntries)
{
    const CString& rsName = rEntries.fields.msParameterName;
    switch (rEntries.parameter) {
    case ESweepParameter::ModelParameter:
        return "modparam " + rsName + "(" + rEntries.fields.msModelName + ")";
    case ESweepParameter::Parameter:
        return rsName;
    case ESweepParameter::ParameterName:
        return "param " + rsName;
    case ESweepParameter::Source:
        return "source " + rsName;
    case ESweepParameter::Temperature:
        return "temp";
    }
    return {};
}

// Meant: only a plain parameter has a blank in front of it here.
CString ParameterClauseOfPoi(const TSweepEntries& rEntries)
{
    const bool bPlain = rEntries.parameter == ESweepParameter::Parameter;
    return (bPlain ? " " : "") + ParameterClause(rEntries);
}

// Meant: the parameter stands behind "lin" with an increment and before it without one.
CString LinearClause(const TSweepEntries& rEntries)
{
    const TSweepFields& rFields = rEntries.fields;
    const CString sRange = " " + rFields.msStart + " " + rFields.msStop;
    if (!rFields.msIncrement.IsEmpty())
        return "lin " + ParameterClause(rEntries) + sRange + " " + rFields.msIncrement;
    return ParameterClause(rEntries) + " lin " + rFields.msNumberOfPoints + sRange;
}

CString LogarithmicClause(const char* pKeyword, const TSweepEntries& rEntries)
{
    const TSweepFields& rFields = rEntries.fields;
    return pKeyword + (" " + ParameterClause(rEntries)) + " " + rFields.msStart + " " +
           rFields.msStop + " " + rFields.msNumberOfPoints;
}

CString MonteCarloClause(const TSweepFields& rFields)
{
    const CString sRuns = "monte=" + rFields.msStart;
    return rFields.msStop.IsEmpty() ? sRuns : sRuns + " seed=" + rFields.msStop;
}

CString OptimizationClause(const TSweepFields& rFields)
{
    const bool bNamed = std::string_view(rFields.msStart).starts_with("opt");
    return (bNamed ? "optimize=" : "optimize=opt") + rFields.msStart +
           " results=" + rFields.msStop + " model=" + rFields.msIncrement;
}
} // namespace

bool gVariesParameter(ESweepType type)
{
    return type >= ESweepType::Linear && type <= ESweepType::Poi;
}

const char* gMissingSweepParameter(const TSweepEntries& rEntries)
{
    const bool bNamed = !rEntries.fields.msParameterName.IsEmpty();
    switch (rEntries.parameter) {
    case ESweepParameter::ModelParameter:
        if (bNamed && rEntries.fields.msModelName.IsEmpty())
            return "__$$Translatable$$_Missing model name.";
        [[fallthrough]];
    case ESweepParameter::Parameter:
    case ESweepParameter::ParameterName:
        return bNamed ? nullptr : "__$$Translatable$$_Missing parameter name.";
    case ESweepParameter::Source:
        return bNamed ? nullptr : "__$$Translatable$$_Missing source name.";
    case ESweepParameter::Temperature:
        return nullptr;
    }
    return nullptr;
}

const char* gMissingSweepValue(const TSweepEntries& rEntries)
{
    const TSweepFields& rFields = rEntries.fields;
    const char* const pMissingRange = MissingRange(rFields);
    switch (rEntries.type) {
    case ESweepType::NotUsed:
        return nullptr;
    case ESweepType::Linear:
        if (!pMissingRange && rFields.msIncrement.IsEmpty() && rFields.msNumberOfPoints.IsEmpty())
            return "__$$Translatable$$_Missing increment or total number of points.";
        return pMissingRange;
    case ESweepType::Decade:
        if (!pMissingRange && rFields.msNumberOfPoints.IsEmpty())
            return "__$$Translatable$$_Missing number of points per decade.";
        return pMissingRange;
    case ESweepType::Octave:
        if (!pMissingRange && rFields.msNumberOfPoints.IsEmpty())
            return "__$$Translatable$$_Missing number of points per octave.";
        return pMissingRange;
    case ESweepType::List:
        return rFields.msListOfValues.IsEmpty() ? "__$$Translatable$$_Missing values." : nullptr;
    case ESweepType::Poi:
        if (rFields.msListOfValues.IsEmpty())
            return "__$$Translatable$$_Missing values.";
        return rFields.msStop.IsEmpty() ? "__$$Translatable$$_Missing total number of points."
                                        : nullptr;
    case ESweepType::Data:
        return rFields.msStart.IsEmpty() ? "__$$Translatable$$_Missing dataname." : nullptr;
    case ESweepType::MonteCarlo:
        return rFields.msStart.IsEmpty()
                   ? "__$$Translatable$$_Missing number of runs to be performed."
                   : nullptr;
    case ESweepType::Optimization:
        if (rFields.msStart.IsEmpty())
            return "__$$Translatable$$_Missing parameter names to be optimized.";
        if (rFields.msStop.IsEmpty())
            return "__$$Translatable$$_Missing measurement results.";
        return rFields.msIncrement.IsEmpty() ? "__$$Translatable$$_Missing model name." : nullptr;
    }
    return nullptr;
}

CString gComposeSweepClause(const CString& rsPrefix, const TSweepEntries& rEntries)
{
    const TSweepFields& rFields = rEntries.fields;
    switch (rEntries.type) {
    case ESweepType::NotUsed:
        return rsPrefix;
    case ESweepType::Linear:
        return rsPrefix + LinearClause(rEntries);
    case ESweepType::Decade:
        return rsPrefix + LogarithmicClause("dec", rEntries);
    case ESweepType::Octave:
        return rsPrefix + LogarithmicClause("oct", rEntries);
    case ESweepType::List:
        return rsPrefix + "list " + ParameterClause(rEntries) + " " +
               gJoinLines(rFields.msListOfValues);
    case ESweepType::Poi:
        return rsPrefix + ParameterClauseOfPoi(rEntries) + " poi " + rFields.msStop + " " +
               gJoinLines(rFields.msListOfValues);
    case ESweepType::Data:
        return rsPrefix + "data=" + rFields.msStart;
    case ESweepType::MonteCarlo:
        return rsPrefix + MonteCarloClause(rFields);
    case ESweepType::Optimization:
        return rsPrefix + OptimizationClause(rFields);
    }
    return rsPrefix;
}
