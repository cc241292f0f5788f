#pragma once

#include <string>

namespace quorvawiz::cli
{

/// What `options` is asked for.
struct TOptionsOptions {
    std::string sWord; ///< UTF-8; only options that have it are told, all if it is empty
    bool bJson = false;
};

/// Tells the simulator's options that have a word, letter case of ASCII put aside, in their entry,
/// their key or their explanation: a line each, and below it what can be chosen.
/// @return the text for the standard output; without an option an empty text, or an empty list of
///         JSON
std::string gTellOptions(const TOptionsOptions& rOptions);

/// Runs `options`. Without an option that has the word, says so on standard error.
/// Result: the program's exit code, `kNothingDone` if there is no such option.
int gRunOptions(const TOptionsOptions& rOptions);

} // namespace quorvawiz::cli
