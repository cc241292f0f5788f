#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{

/// The names of the subcircuits' instances, as a netlist has them on its lines: "x1", "xq.1", in
/// lower case. A flat name alone doesn't tell where such a name ends, as it may have points.
using TInstanceNames = std::set<std::string, std::less<>>;

/// A name of the flattened netlist, taken apart.
struct TFlatName {
    std::vector<std::string> instances; ///< from the outermost one on; empty at the top level
    std::string sName;                  ///< the name within the innermost one: "q9"

    friend bool operator==(const TFlatName&, const TFlatName&) = default;
};

/// Takes the name of a device apart: "q9"; "q.xtop.q9"; "q.xtop.q.x1.q9" or "q.xtop.x1.q9" in
/// nested subcircuits. Each level puts the letter of the device and the name of the subcircuit's
/// instance in front. What isn't of this form stands at the top level as it is.
/// @param sFlat any text
/// @param rInstances the names that are instances; of two that fit the longer one counts
[[nodiscard]] TFlatName gSplitDeviceName(std::string_view sFlat, const TInstanceNames& rInstances);

/// Takes the name of a model apart: "nch"; "xtop:nch"; "xtop:x1:nch" for one that is declared in
/// nested subcircuits. What isn't of this form stands at the top level as it is.
/// @param sFlat any text
/// @param rInstances the names that are instances
[[nodiscard]] TFlatName gSplitModelName(std::string_view sFlat, const TInstanceNames& rInstances);

} // namespace quorvawiz::ngspice
