#pragma once

#include "simulators/ngspice/listings/ShownValues.h"

#include <string_view>

namespace quorvawiz::ngspice
{

/// A device, as the command `show` tells it.
struct TShownDevice {
    std::string_view sName;  ///< the flat name: "q.x1.q9"
    std::string_view sModel; ///< the flat name of its model; without a card one capital letter
    TShownValues values;

    friend bool operator==(const TShownDevice&, const TShownDevice&) = default;
};

/// Reads the listing of `show all : all`, made with the variable `altshow` set: devices one by one,
/// as there may be many.
class CShownDevices
{
public:
    /// Begins with the first device.
    /// @param sListing any bytes, which stay where they are as long as results are used
    explicit CShownDevices(std::string_view sListing) noexcept : msRest(sListing) {}

    /// Reads the next device. Lines of another form are passed over.
    /// @param rDevice receives it; its texts lead into the listing, and its memory is used again
    /// @return false at the end, and rDevice says nothing then
    bool Next(TShownDevice& rDevice);

private:
    std::string_view msRest;
};

} // namespace quorvawiz::ngspice
