#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvawiz::ngspice
{

/// The cards of an expanded netlist by the flat names of what they declare. The simulator has all
/// names in lower case.
class CCards
{
public:
    /// @param sListing listing of `listing expand`, any bytes, which stay where they are
    explicit CCards(std::string_view sListing);

    /// The card of a device; empty if there is none.
    [[nodiscard]] std::string_view FindDevice(std::string_view sName) const;

    /// The .model card of a model; empty if there is none. A binned model "nch.1" of which there is
    /// none has that of "nch".
    [[nodiscard]] std::string_view FindModel(std::string_view sName) const;

    /// The flat names of the devices, in the order of the netlist.
    [[nodiscard]] const std::vector<std::string_view>& GetDeviceNames() const noexcept
    {
        return mDeviceNames;
    }

private:
    std::vector<std::string_view> mDeviceNames;
    std::unordered_map<std::string_view, std::string_view> mDevices;
    std::unordered_map<std::string_view, std::string_view> mModels;
};

} // namespace quorvawiz::ngspice
