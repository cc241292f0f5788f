#pragma once

#include "simulators/ngspice/listings/DeviceTypes.h"

#include <span>
#include <string>
#include <string_view>

namespace quorvawiz::ngspice
{

/// Files that the simulator writes its listings to, in the folder where it works.
namespace files
{
inline constexpr std::string_view kVersion = "version.txt"; ///< `version -s`
inline constexpr std::string_view kPlot = "plot.txt";       ///< "op1" after an operating point
inline constexpr std::string_view kShow = "show.txt";       ///< `show all : all`
inline constexpr std::string_view kShowMod = "showmod.txt"; ///< `showmod all : all`
inline constexpr std::string_view kExpand = "expand.txt";   ///< `listing expand`
inline constexpr std::string_view kTypes = "types.txt";     ///< `devhelp`
inline constexpr std::string_view kTables = "tables.txt";   ///< `devhelp -csv` of each type
} // namespace files

/// The end of a netlist: commands that find the operating point and list what is known then.
[[nodiscard]] std::string gListingCommands();

/// A file that has the simulator list its types of devices.
[[nodiscard]] std::string gTypeCommands();

/// A file that has the simulator list the parameters of types of devices.
/// @param types those whose names could be anything but a word are left out
[[nodiscard]] std::string gTableCommands(std::span<const TDeviceType> types);

} // namespace quorvawiz::ngspice
