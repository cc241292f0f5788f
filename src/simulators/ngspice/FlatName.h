#pragma once

#include <string>
#include <string_view>

namespace quorvawiz::ngspice
{

/// A name of the flattened netlist, taken apart.
struct TFlatName {
    std::string sSubckt; ///< the path of the subcircuit, "xtop.x1"; empty at the top level
    std::string sName;   ///< the name within it: "q9"

    friend bool operator==(const TFlatName&, const TFlatName&) = default;
};

/// Takes the name of a device apart: "q9"; "q.xtop.q9"; "q.xtop.q.x1.q9" or "q.xtop.x1.q9" in
/// nested subcircuits. Each level puts the letter of the device and the name of the subcircuit's
/// instance in front, and that begins with an x. What isn't of this form stands at the top level as
/// it is.
/// @param sFlat any text
[[nodiscard]] TFlatName gSplitDeviceName(std::string_view sFlat);

/// Takes the name of a model apart: "nch"; "xtop:nch"; "xtop:x1:nch" for one that is declared in
/// nested subcircuits. What isn't of this form stands at the top level as it is.
/// @param sFlat any text
[[nodiscard]] TFlatName gSplitModelName(std::string_view sFlat);

} // namespace quorvawiz::ngspice
