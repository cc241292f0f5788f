#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <stop_token>
#include <string>
#include <vector>

namespace quorvawiz::ngspice
{

/// A program to run, and its bounds.
struct TChildRequest {
    std::string sProgram;                 ///< its path
    std::vector<std::string> arguments;   ///< behind the program's name
    std::vector<std::string> environment; ///< "NAME=VALUE", and no others
    std::filesystem::path folder;         ///< where it works
    std::string sOut;                     ///< the file of its standard output, in the folder
    std::string sError;                   ///< the file of its standard error, in the folder
    std::chrono::steady_clock::time_point deadline; ///< when it is killed
    std::uint64_t nMostBytes = 1U << 30U;           ///< of each file that it writes
};

/// How a program ended.
enum class EChildEnd {
    Exited,    ///< by itself
    Killed,    ///< by a signal
    TimedOut,  ///< the deadline came, and it was killed
    Cancelled, ///< the user ended it, and it was killed
};

/// How a program ended, and with what.
struct TChildResult {
    EChildEnd eEnd = EChildEnd::Exited;
    int nCode = 0; ///< the exit code, or the signal
};

/// Runs a program and waits for its end. No shell takes part; the standard input is empty; no other
/// open file is inherited; it has a process group of its own, which is killed as a whole; on Linux
/// it can't start another program, and dies with the calling thread.
/// @param rRequest what to run
/// @param stop ends it
/// @throws CImportError if it can't be started
[[nodiscard]] TChildResult gRunChild(const TChildRequest& rRequest, const std::stop_token& stop);

} // namespace quorvawiz::ngspice
