#pragma once

#include <chrono>
#include <filesystem>
#include <stop_token>
#include <string>

namespace quorvawiz::ngspice
{

class CPrivateFolder;

/// An installed simulator, with the time that it has.
class CSimulator
{
public:
    /// Finds the program.
    /// @param rsProgram its path, or its name to be found on the PATH
    /// @param timeout for all runs together, from now on
    /// @param stop ends a run
    /// @throws CImportError if there is no such program
    CSimulator(const std::string& rsProgram, std::chrono::milliseconds timeout,
               std::stop_token stop);

    /// Lets it read a file in a folder, in batch and without the user's start-up files, and waits
    /// for its end. See gRunChild for what it may do.
    /// @param rFolder where it works
    /// @param rsFile the file's name in the folder
    /// @param rInputFolder where it looks for files of data that models name
    /// @return how it failed, with its own words; empty if it ended well
    /// @throws CImportError if it can't be run or took too long; CImportCancelled
    [[nodiscard]] std::string Run(const CPrivateFolder& rFolder, const std::string& rsFile,
                                  const std::filesystem::path& rInputFolder) const;

    /// Its own words about a failure, from its last run in a folder; see gOwnWords.
    [[nodiscard]] static std::string ReadWords(const CPrivateFolder& rFolder);

    /// Tells whether it gave up an analysis in its last run in a folder, which is no failure to it.
    [[nodiscard]] static bool WasAborted(const CPrivateFolder& rFolder);

    /// Its path.
    [[nodiscard]] const std::string& GetProgram() const noexcept { return msProgram; }

private:
    std::string msProgram;
    std::chrono::milliseconds mTimeout;
    std::chrono::steady_clock::time_point mDeadline;
    std::stop_token mStop;
};

} // namespace quorvawiz::ngspice
