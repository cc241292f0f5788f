#pragma once

#include "support/Steps.h"
#include "support/WizardRun.h"

#include <vector>

// What a user types into the page of initial conditions.

namespace initialConditionSteps
{
inline constexpr const char* kTranslatedPath = "[Initialization]/[Initial condition]";
inline constexpr const char* kIllegalName = "Illegal inductor name (Must begin with 'L').";
inline constexpr const char* kAlreadyThere = "This entry is already in the list.";
inline constexpr const char* kDeleteQuestion =
    "Are you sure you want to delete the selected initial condition from the list?";
inline constexpr const char* kClearQuestion =
    "Are you sure you want to delete all initial conditions in the list?";

inline constexpr int kVoltage = 0;
inline constexpr int kCurrent = 1;

inline CScript OnPage(const char* pPath = "Initialization/Initial condition")
{
    CScript script;
    script.Do({steps::Open(pPath)});
    return script;
}

/// Fills in name, second and value field in node voltage mode.
inline std::vector<TStep> gVoltage(const char* pName, const char* pSecond, const char* pValue)
{
    return {steps::Choose("mode", kVoltage), steps::Set("name", pName),
            steps::Set("second", pSecond), steps::Set("value", pValue)};
}

/// Fills in name and current in inductor current mode.
inline std::vector<TStep> gCurrent(const char* pName, const char* pSecond)
{
    return {steps::Choose("mode", kCurrent), steps::Set("name", pName),
            steps::Set("second", pSecond)};
}

/// Adds "v(a)=1", then "i(L2)=0".
inline CScript WithTwoEntries()
{
    CScript script = OnPage();
    script.Do(gVoltage("a", "", "1")).Do({steps::Click("add")});
    script.Do(gCurrent("L2", "0")).Do({steps::Click("add")});
    return script;
}
} // namespace initialConditionSteps
