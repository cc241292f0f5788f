#pragma once

#include <string>

/// Puts "0" in the place of every two successive points, from the front: a repair of numbers that
/// the Unix side's runtime is known to garble.
/// @param sNumber a formatted number
/// @return the number without two points in a row
[[nodiscard]] std::string gRepairDoubledPoints(std::string sNumber);
