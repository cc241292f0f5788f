#pragma once

#include "foundation/StringU.h"

#include <functional>

/// What takes the lines of path calls: one call, one line, without a line end. It must not call the
/// functions that log. What it throws is dropped, and the call that it was told of goes on.
using TPathLogger = std::function<void(const CStringU& rLine)>;

/// Sets what takes a line from each call of gCanonicalizePath, gIsAbsolutePath, gConcatenatePaths,
/// gGetRelativeFileName, gGetFileNameWithoutPath and gGetPathWithoutFileName, with the arguments
/// and the result. Calls among them give no line. For the whole process; unguarded.
/// @param logger the new one; an empty one clears
void gSetPathLogger(TPathLogger logger);

/// Goes back to no logger, as at the start: then nothing is formatted at all.
void gClearPathLogger();

/// Tells whether there is a logger.
[[nodiscard]] bool gIsPathLoggerSet();
