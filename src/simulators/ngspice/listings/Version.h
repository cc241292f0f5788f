#pragma once

#include <string>
#include <string_view>

namespace quorvawiz::ngspice
{

/// The least version of the simulator whose listings are known.
inline constexpr int kLeastVersion = 39;

/// The version of a simulator.
struct TVersion {
    int nMajor = 0;    ///< 39; 0 if it isn't known
    std::string sName; ///< "ngspice-39"
    std::string sDate; ///< when it was built, as it says; empty if it doesn't

    friend bool operator==(const TVersion&, const TVersion&) = default;
};

/// Reads the text of the command `version -s`.
/// @param sText any bytes
[[nodiscard]] TVersion gReadVersion(std::string_view sText);

} // namespace quorvawiz::ngspice
