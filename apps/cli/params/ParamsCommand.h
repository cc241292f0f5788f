#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvawiz::cli
{

/// What `params` is asked for. Texts are UTF-8.
struct TParamsOptions {
    std::string sFile;                  ///< the params file
    std::string sAction;                ///< what to do with it
    std::vector<std::string> arguments; ///< what the action takes
    bool bXml = false;                  ///< for save: as XML
    bool bJson = false;                 ///< for info and tables: one line of JSON
    bool bVerbose = false;              ///< also tells why a file is refused, and where
    bool bHeader = false;               ///< for CSV: a row of titles in front
    std::optional<std::string> csv;     ///< for tables: the CSV file to write, or "-"
    std::optional<std::string> subckt;  ///< for devices: those of this subcircuit
    std::optional<std::string> tab;     ///< for windows with tabs: this one
};

/// Runs `params`. Result: the program's exit code: 1 where the file can't be read or written, and
/// where check finds a link that leads nowhere.
/// @throws CUsageError for an unknown action, for arguments that the action doesn't take, and for
///         names that the file doesn't have
int gRunParams(const TParamsOptions& rOptions);

} // namespace quorvawiz::cli
