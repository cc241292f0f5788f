#include "wizard/optimization/OptimizationBlock.h"

#include "platform/ui/Translate.h"
#include "wizard/frame/PageText.h"

namespace
{
constexpr const char* kAnalysisKeywords[] = {"ac", "dc", "tran", "step"};
static_assert(std::size(kAnalysisKeywords) == std::size(kAnalysisNames));

constexpr int kKeysPerLine = 5;

/// Each item as a command of its own.
CString CommandPerItem(CString sLines, const char* pCommand, const CString& rsName)
{
    sLines.Replace("\n", "\r\n" + (pCommand + rsName) + " ");
    return sLines;
}
} // namespace

CString gGoalItem(const TOptimizationGoal& rGoal)
{
    CString sItem = rGoal.msMeasurement + "=" + rGoal.msTarget;
    gAppendIfAny(sItem, " minval=", rGoal.msMinimumValue);
    gAppendIfAny(sItem, " weight=", rGoal.msWeight);
    return sItem;
}

CString gLimitsItem(const TParameterLimits& rLimits)
{
    CString sItem =
        rLimits.msName + " minval=" + rLimits.msMinimum + " maxval=" + rLimits.msMaximum;
    gAppendIfAny(sItem, " delta=", rLimits.msDelta);
    gAppendIfAny(sItem, " guess=", rLimits.msGuess);
    return sItem;
}

CString gAnalysisKeyword(const CString& rsName)
{
    // Meant: compared with the English names, though the user sees translated ones.
    for (std::size_t n = 0; n < std::size(kAnalysisNames); ++n)
        if (rsName == kAnalysisNames[n] + xlang::kTranslationMarker.size())
            return kAnalysisKeywords[n];
    return rsName;
}

CString gAlgorithmModel(const TAlgorithm& rAlgorithm)
{
    CString sModel = ".model " + rAlgorithm.msName + " opt";
    int nOnLine = 0;
    for (std::size_t n = 0; n < kAlgorithmKeys.size(); ++n) {
        const CString& rsValue = rAlgorithm.mValues[n];
        if (rsValue.IsEmpty())
            continue;
        if (nOnLine == kKeysPerLine) {
            sModel += "\r\n+     ";
            nOnLine = 0;
        }
        sModel += CString(" ") + kAlgorithmKeys[n].pKey + "=" + rsValue;
        ++nOnLine;
    }
    return sModel;
}

CString gOptimizationBlock(const TOptimization& rOptimization)
{
    const CString& rsName = rOptimization.msName;
    return ".optimize " + rsName + " model=" + rOptimization.mAlgorithm.msName +
           " analysisname=" + gAnalysisKeyword(rOptimization.msAnalysisName) +
           CommandPerItem(rOptimization.msLimitsLines, ".paramlimits ", rsName) +
           CommandPerItem(rOptimization.msGoalLines, ".optgoal ", rsName) + "\r\n" +
           gAlgorithmModel(rOptimization.mAlgorithm);
}
