#pragma once

#include "support/Steps.h"

#include <vector>

// What a user does with the sweep behind the button `pButton`, from the press to the end of the
// dialog.

namespace steps
{
/// Accepts a linear sweep of a parameter name by increment.
inline std::vector<TStep> Linear(const char* pButton, const char* pName, const char* pStart,
                                 const char* pStop, const char* pIncrement)
{
    return {Click(pButton),
            Select("sweep-type", "Linear"),
            Select("parameter-type", "Parameter name"),
            Set("parameter-name", pName),
            Set("start", pStart),
            Set("stop", pStop),
            Set("increment", pIncrement),
            Click("accept")};
}

/// Accepts a sweep over a number of Monte Carlo runs.
inline std::vector<TStep> MonteCarlo(const char* pButton, const char* pRuns)
{
    return {Click(pButton), Select("sweep-type", "Monte Carlo"), Set("start", pRuns),
            Click("accept")};
}

/// Returns a sweep to "Not used": by a parameter that is found missing.
inline std::vector<TStep> Unuse(const char* pButton)
{
    return {Click(pButton), Select("sweep-type", "Linear"), Set("parameter-name", ""),
            Click("accept"), Click("cancel")};
}
} // namespace steps
