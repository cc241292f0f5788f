#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{

/// A type of device that the simulator has.
struct TDeviceType {
    std::string sName;        ///< as the simulator spells it: "BSIM4"
    std::string sDescription; ///< one line

    friend bool operator==(const TDeviceType&, const TDeviceType&) = default;
};

/// Reads the listing of the command `devhelp`: a line "NAME : DESCRIPTION" for each type. Lines of
/// another form are passed over.
/// @param sListing any bytes
/// @return the types in the order of the listing
[[nodiscard]] std::vector<TDeviceType> gReadDeviceTypes(std::string_view sListing);

} // namespace quorvawiz::ngspice
