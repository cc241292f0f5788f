#pragma once

#include "cli/RequestMembers.h"
#include "foundation/StringU.h"

namespace quorvawiz::cli
{

/// The requests of a session that are for the parameter browser. docs/session.md says what each
/// does.
struct TLoadRequest {
    CStringU sPath;
};
/// The dialogs that `browse` opens.
enum class EBrowserDialog { Devices, LibraryModels, SimulatorModels };
struct TBrowseRequest {
    EBrowserDialog dialog = EBrowserDialog::Devices;
    bool bRecalculate = false; ///< not of SimulatorModels
    CStringU sClass{};         ///< of SimulatorModels alone
};
struct TDeviceDetailsRequest {
    CStringU sSubckt;
    CStringU sName;
};
struct TRowsRequest {
    int nFrom = 0;
    int nCount = 0;
};

/// The most rows that one request is told.
inline constexpr int kMostRows = 10'000;

/// Each reads a request's members.
/// @throws CRequestError if one is missing, of another type or out of range
TLoadRequest gReadLoad(const CRequestMembers& rMembers);
TBrowseRequest gReadBrowse(const CRequestMembers& rMembers);
TDeviceDetailsRequest gReadDeviceDetails(const CRequestMembers& rMembers);
TRowsRequest gReadRows(const CRequestMembers& rMembers);

} // namespace quorvawiz::cli
