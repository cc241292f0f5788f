#pragma once

#include <string>

namespace quorvawiz::cli
{

/// What `import` is asked for.
struct TImportCommandOptions {
    std::string sNetlist;               ///< the netlist to import
    std::string sOut;                   ///< the params file to write
    std::string sSimulator = "ngspice"; ///< path of the simulator, or its name on the PATH
    int nTimeout = 60;                  ///< seconds for all that the simulator does, at least 1
    bool bProgress = false;             ///< tell each stage on standard error
};

/// Runs `import`: has a simulator work on a netlist, and writes what it tells as a params file.
/// SIGINT, SIGTERM and SIGHUP end it: the simulator is killed and nothing is written. Result: the
/// program's exit code.
/// @throws CUsageError where the params file would be the netlist
int gRunImport(const TImportCommandOptions& rOptions);

} // namespace quorvawiz::cli
