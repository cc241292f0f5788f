#pragma once

#include <iosfwd>
#include <string>
#include <vector>

/// How a program ended, byte for byte.
struct TProgramRun {
    std::string sOut;   ///< its standard output
    std::string sError; ///< its standard error
    int nExitCode = -1; ///< its exit code, or -1 if a signal ended it

    friend bool operator==(const TProgramRun&, const TProgramRun&) = default;
};

/// Prints the run where a test fails.
void PrintTo(const TProgramRun& rRun, std::ostream* pOut);

/// Runs a program and waits for its end.
/// @param rsProgram its path, or its name to be found on the PATH
/// @param rArguments what follows the program's name
/// @param rsInput its standard input
/// Throws std::runtime_error if it can't be started.
TProgramRun gRunProgram(const std::string& rsProgram, const std::vector<std::string>& rArguments,
                        const std::string& rsInput = {});

/// Runs the command line and waits for its end.
/// @param rArguments what follows the program's name
/// @param rsInput its standard input
/// Throws std::runtime_error if it can't be started.
TProgramRun gRunQuorvawiz(const std::vector<std::string>& rArguments,
                          const std::string& rsInput = {});
