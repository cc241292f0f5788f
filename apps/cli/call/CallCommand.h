#pragma once

#include "foundation/EngineeringFormatSettings.h"
#include "platform/base/MapEnvironment.h"

#include <iosfwd>

namespace quorvawiz::cli
{

/// The options of `call`.
struct TCallOptions {
    CMapEnvironment::TVariables environment; ///< all variables that there are
    TEngineeringFormatSettings format;
    bool bLog = false;  ///< each reply tells the lines of the path logger
    bool bList = false; ///< only list the functions
};

/// Answers calls, one a line, until the input ends (docs/call.md).
/// @param rOptions what the functions find around them; it stays so afterwards
/// @param rIn the calls
/// @param rOut receives one line for each
/// @throws std::runtime_error if the input can't be read or the output can't be written
void gAnswerCalls(const TCallOptions& rOptions, std::istream& rIn, std::ostream& rOut);

/// Runs `call` on the standard input and output.
/// @return the program's exit code
/// @throws as gAnswerCalls
int gRunCall(const TCallOptions& rOptions);

} // namespace quorvawiz::cli
