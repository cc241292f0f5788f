#pragma once

#include "quorvahost/CommandPlace.h"

#include <QString>
#include <variant>

namespace quorvawiz::host
{

/// A device of the flattened circuit, or an instance of a subcircuit, which has an empty `sSubckt`
/// and its whole path as the name.
struct TDeviceName {
    QString sSubckt; ///< the path of instances that lead to it, "X6.X1"; "top" at the top level
    QString sName;   ///< "MP", or "X6.X1" for an instance

    bool operator==(const TDeviceName&) const = default;
};

/// Why there is no device, in words without a full stop.
struct TNoDevice {
    QString sWhy;

    bool operator==(const TNoDevice&) const = default;
};

/// Finds the device whose statement a line belongs to, continuation lines ("+ ...") included; names
/// are as the netlist writes them. A device inside a subcircuit exists once for each of its
/// instances: the one meant is that of the first instance in the netlist, and so at each level.
/// @param nLine from 0
std::variant<TDeviceName, TNoDevice> gDeviceAt(const TLines& rLines, int nLine);

} // namespace quorvawiz::host
