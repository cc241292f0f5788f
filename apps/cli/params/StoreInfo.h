#pragma once

#include <string>

class TCircuitParams;

namespace quorvawiz::cli
{

/// How a params file was read.
struct TLoadInfo {
    std::string sFile;          ///< its path
    int nArchiveVersion = 0;    ///< as it stands in the file
    double dMilliseconds = 0.0; ///< how long it took
};

/// What there is in a store, by numbers.
/// @param bJson one line of JSON instead of a line per number
/// @return the text for the standard output
std::string gTellInfo(const TCircuitParams& rStore, const TLoadInfo& rLoad, bool bJson);

} // namespace quorvawiz::cli
