#include "cli/SessionBrowser.h"

#include "cli/Quote.h"
#include "cli/RequestError.h"
#include "exports/Quorvawiz.h"

namespace quorvawiz::cli
{

void CSessionBrowser::Load(const TLoadRequest& rRequest)
{
    auto [sMessage, pStore] = gReadCircuitParameters(rRequest.sPath);
    if (!sMessage.IsEmpty())
        throw CRequestError(gPrintable(sMessage.Text()));
    mpStore = std::move(pStore);
}

boost::shared_ptr<TCircuitParams> CSessionBrowser::Store() const
{
    if (!mpStore)
        throw CRequestError("no params file is loaded");
    return mpStore;
}

TRunBrowser CSessionBrowser::Open(const TBrowseRequest& rRequest) const
{
    const auto pStore = Store();
    switch (rRequest.dialog) {
    case EBrowserDialog::Devices:
        return [pStore, rRequest] {
            return gInvokeParamBrowserDevicesDialog(nullptr, *pStore, rRequest.bRecalculate);
        };
    case EBrowserDialog::LibraryModels:
        return [pStore, rRequest] {
            return gInvokeParamBrowserLibraryModelsDialog(nullptr, *pStore, rRequest.bRecalculate);
        };
    case EBrowserDialog::SimulatorModels:
        return [pStore, rRequest] {
            gInvokeParamBrowserQuorvaModelsDialog(nullptr, *pStore, rRequest.sClass);
            return std::nullopt;
        };
    }
    return {};
}

TRunBrowser CSessionBrowser::Open(const TDeviceDetailsRequest& rRequest) const
{
    return [pStore = Store(), rRequest] {
        return gInvokeDeviceDetailsDialog(nullptr, *pStore, rRequest.sSubckt, rRequest.sName);
    };
}

} // namespace quorvawiz::cli
