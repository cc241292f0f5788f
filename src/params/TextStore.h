#pragma once

#include "params/archive/ByteSource.h"

class TCircuitParams;

/// Reads a text archive into a store.
/// @param rSource the archive
/// @param rStore an empty store; where the read breaks off it has what was read so far
/// @return the version of the archive
/// @throws CParamsArchiveError for what isn't such an archive
int gLoadText(IByteSource& rSource, TCircuitParams& rStore);

/// Writes a store as a text archive. In the values of its devices NaN becomes 123456789.0, in the
/// store too, although it is constant.
/// @param rTarget where the bytes go
/// @param rStore the store; its pointers lead into itself
/// @throws boost::archive::archive_exception for a pointer that doesn't, and what the target throws
void gSaveText(IByteTarget& rTarget, const TCircuitParams& rStore);
