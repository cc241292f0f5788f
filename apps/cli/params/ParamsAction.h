#pragma once

#include "cli/params/ParamsCommand.h"
#include "cli/params/StoreInfo.h"

#include <span>
#include <vector>

namespace quorvawiz::cli
{

/// An action of `params`: what it takes, and what it does.
struct TParamsAction {
    const char* pName;
    std::vector<const char*> arguments; ///< the names of those that it needs
    std::vector<const char*> options;   ///< those that it takes, besides the ones of all
    /// Does it. Result: the program's exit code. Throws CUsageError for names that the store
    /// doesn't have.
    int (*pRun)(const TCircuitParams& rStore, const TParamsOptions& rOptions,
                const TLoadInfo& rLoad);
};

/// Finds the action, and looks whether it is given what it takes.
/// @param actions all that there are
/// @throws CUsageError if there is no such action, or it takes something else
const TParamsAction& gFindAction(std::span<const TParamsAction> actions,
                                 const TParamsOptions& rOptions);

} // namespace quorvawiz::cli
