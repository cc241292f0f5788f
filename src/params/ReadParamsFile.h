#pragma once

#include "foundation/StringU.h"

#include <boost/smart_ptr/shared_ptr.hpp>

#include <string>

class TCircuitParams;

/// What became of reading a params file.
struct TReadParamsFile {
    CStringU msMessage;                        ///< for the user; empty on success
    std::string msDetail;                      ///< for a log: what the matter was; empty on success
    boost::shared_ptr<TCircuitParams> mpStore; ///< never null; on a failure what was read so far
    int mnArchiveVersion = 0;                  ///< on success that of the file
};

/// Reads a params file into a new store, and tells in a message what goes wrong. Where there is no
/// memory for that message either, it is "Out of memory".
/// @param rsPath the file
[[nodiscard]] TReadParamsFile gReadParamsFile(const CStringU& rsPath) noexcept;
