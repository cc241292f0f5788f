#pragma once

#include <cstdint>
#include <string>

namespace quorvawiz::cli
{

/// What `make-example` is asked for.
struct TMakeExampleOptions {
    std::string sOut;        ///< the file to write
    int nDevices = 1000;     ///< at least 0
    std::uint64_t nSeed = 1; ///< the same seed makes the same file
};

/// Runs `make-example`: writes a params file of a plausible circuit. Result: the program's exit
/// code.
int gRunMakeExample(const TMakeExampleOptions& rOptions);

} // namespace quorvawiz::cli
