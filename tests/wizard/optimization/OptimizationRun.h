#pragma once

#include "support/Steps.h"
#include "support/WizardRun.h"

#include <initializer_list>
#include <string>
#include <vector>

// A user's way through the steps of the optimization wizard, written as for the command line.

namespace optimization
{
using TArguments = std::vector<std::string>;

inline const std::string kPage = "Optimization/Wizard";

/// What a step is filled in with, and the button that leaves it.
inline const TArguments kSetup{"optimization-name=o1", "analysis-name=First Transient Analysis",
                               "continue"};
inline const TArguments kGoal{"measurement=delay", "target=1n", "continue"};
inline const TArguments kLimits{"parameter-name=w", "minimum=1u", "maximum=5u", "continue"};
inline const TArguments kAlgorithm{"name=m1", "continue"};

inline TArguments gJoin(std::initializer_list<TArguments> parts)
{
    TArguments all;
    for (const TArguments& rPart : parts)
        all.insert(all.end(), rPart.begin(), rPart.end());
    return all;
}

/// The way to a step, each one before filled in with the least.
inline TArguments gWayTo(int nStep)
{
    const TArguments steps[] = {kSetup, kGoal, kLimits, kAlgorithm};
    TArguments way;
    for (int n = 0; n < nStep; ++n)
        way = gJoin({way, steps[n]});
    return way;
}

/// The page on display, at this step.
inline CScript gAtStep(int nStep)
{
    CScript script;
    script.Do({steps::Open(kPage.c_str())}).Fill(gWayTo(nStep));
    return script;
}

/// Arguments that blank the fields of all ten keys.
inline TArguments gBlankKeys()
{
    return {"cendif=", "close=", "cut=",    "difsiz=", "grad=",
            "itropt=", "max=",   "parmin=", "relin=",  "relout="};
}
} // namespace optimization
