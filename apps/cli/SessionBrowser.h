#pragma once

#include "cli/BrowserRequest.h"
#include "params/CircuitParams.h"

#include <boost/smart_ptr/shared_ptr.hpp>

#include <functional>
#include <optional>

namespace quorvawiz::cli
{

/// Runs a dialog of the parameter browser until it ends. Result: what the dialog returned; none of
/// one that returns nothing.
using TRunBrowser = std::function<std::optional<bool>()>;

/// The host's side of the parameter browser in a session: the store that is loaded.
class CSessionBrowser
{
public:
    /// Reads a params file.
    /// @throws CRequestError with the text that a host's user sees; the store stays as it was
    void Load(const TLoadRequest& rRequest);
    /// No store is loaded any more.
    void Forget() { mpStore.reset(); }

    /// Prepares a dialog on the store.
    /// @return it keeps the store
    /// @throws CRequestError if no store is loaded
    TRunBrowser Open(const TBrowseRequest& rRequest) const;
    TRunBrowser Open(const TDeviceDetailsRequest& rRequest) const;

private:
    boost::shared_ptr<TCircuitParams> Store() const;

    boost::shared_ptr<TCircuitParams> mpStore;
};

} // namespace quorvawiz::cli
