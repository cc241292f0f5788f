#pragma once

#include "support/RunProgram.h"

#include <string>

// Another simulator as a judge of composed lines.

/// Lets ngspice simulate a circuit.
inline TProgramRun gSimulate(const std::string& rsCircuit)
{
    return gRunProgram("ngspice", {"--batch", "--no-spiceinit"}, rsCircuit);
}

/// True for a run without an error or a warning, and with a table of results of this analysis, as
/// ngspice heads it.
inline bool gIsAccepted(const TProgramRun& rRun, const char* pAnalysis = "Transient Analysis")
{
    const auto says = [&rRun](const char* pWord) {
        return rRun.sError.find(pWord) != std::string::npos ||
               rRun.sOut.find(pWord) != std::string::npos;
    };
    return rRun.nExitCode == 0 && !says("rror") && !says("arning") && says(pAnalysis);
}
