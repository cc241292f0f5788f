#pragma once

#include <stdexcept>

namespace quorvawiz::cli
{

/// What the program returns to the shell.
enum EExitCode : int {
    kDone = 0,           ///< all went well
    kNothingDone = 1,    ///< the wizard inserted nothing, or nothing was found
    kWronglyAsked = 2,   ///< the arguments name something that isn't there or can't be used
    kProgramFailure = 3, ///< the program or its surroundings failed
};

/// The user asked for something that isn't there or can't be used; the text says what, in one line
/// without a point at its end. The program ends with `kWronglyAsked`.
class CUsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace quorvawiz::cli
