#pragma once

#include "params/archive/ByteSource.h"

class TCircuitParams;

/// Reads an XML archive into a store, whose element is "CircuitParams". The library reads it as it
/// is, and doesn't check its ids: only for files that are trusted, as a damaged one can crash.
/// @param rSource the archive
/// @param rStore an empty store
/// @throws boost::archive::archive_exception for what isn't such an archive, which is all that
///         gSaveXml writes
void gLoadXml(IByteSource& rSource, TCircuitParams& rStore);

/// Writes a store as an XML archive, whose element is "cCircuitParams".
/// @param rTarget where the bytes go
/// @param rStore the store, as gSaveText takes it
/// @throws boost::archive::archive_exception for a store with any class: the element of its
///         parameters has no valid name
void gSaveXml(IByteTarget& rTarget, const TCircuitParams& rStore);
