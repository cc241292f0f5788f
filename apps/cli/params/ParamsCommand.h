#pragma once

#include <string>

namespace quorvawiz::cli
{

/// What `params` is asked for.
struct TParamsOptions {
    std::string sFile;     ///< the params file
    std::string sAction;   ///< info, check, dump or save
    std::string sOut;      ///< for save: the file to write
    bool bXml = false;     ///< for save: as XML
    bool bJson = false;    ///< for info: one line of JSON
    bool bVerbose = false; ///< also tells why a file is refused, and where
};

/// Runs `params`. Result: the program's exit code: 1 where the file can't be read or written, and
/// where check finds a link that leads nowhere.
/// @throws CUsageError for an unknown action, and for arguments that the action doesn't take
int gRunParams(const TParamsOptions& rOptions);

} // namespace quorvawiz::cli
