#pragma once

#include "support/Steps.h"
#include "support/WizardRun.h"

#include <initializer_list>
#include <vector>

// What a user types into the page of parameters.

namespace parameterSteps
{
inline constexpr int kTypeGeneral = 0;
inline constexpr int kTypeMonteCarlo = 1;
inline constexpr int kTypeOptimization = 2;

using TSteps = std::vector<TStep>;

inline CScript OnPage(const char* pPath = "Settings/Parameters")
{
    CScript script;
    script.Do({steps::Open(pPath)});
    return script;
}

inline TSteps gJoin(std::initializer_list<TSteps> parts)
{
    TSteps all;
    for (const TSteps& rPart : parts)
        all.insert(all.end(), rPart.begin(), rPart.end());
    return all;
}

inline TSteps gGeneral(const char* pName, const char* pValue)
{
    return {steps::Select("parameter-type", kTypeGeneral), steps::Set("second", pName),
            steps::Set("third", pValue)};
}

/// A null is a field that the distribution hides, or that is left alone.
inline TSteps gMonteCarlo(int nDistribution, const char* pName, const char* pNominal,
                          const char* pVariation, const char* pSigma, const char* pMultiplier)
{
    TSteps all{steps::Select("parameter-type", kTypeMonteCarlo),
               steps::Select("distribution", nDistribution), steps::Set("first", pName),
               steps::Set("second", pNominal), steps::Set("third", pVariation)};
    if (pSigma)
        all.push_back(steps::Set("fourth", pSigma));
    if (pMultiplier)
        all.push_back(steps::Set("fifth", pMultiplier));
    return all;
}

inline TSteps gOptimization(const char* pName, const char* pRunName, const char* pGuess,
                            const char* pMinimum, const char* pMaximum, const char* pDelta)
{
    return {steps::Select("parameter-type", kTypeOptimization),
            steps::Set("first", pName),
            steps::Set("sixth", pRunName),
            steps::Set("second", pGuess),
            steps::Set("third", pMinimum),
            steps::Set("fourth", pMaximum),
            steps::Set("fifth", pDelta)};
}
} // namespace parameterSteps
