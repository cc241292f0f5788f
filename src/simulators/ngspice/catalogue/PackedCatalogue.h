#pragma once

#include "simulators/ngspice/catalogue/Catalogue.h"
#include "simulators/ngspice/listings/Version.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvawiz::ngspice
{

/// A simulator's listings as the bytes of one file, with its version and a check sum.
[[nodiscard]] std::string gPackCatalogue(const TVersion& rVersion,
                                         const TCatalogueListings& rListings);

/// The listings out of such bytes.
/// @param rVersion what they must be of
/// @param sBytes any bytes
/// @return nullopt for another version and for bytes that aren't exactly those of gPackCatalogue
[[nodiscard]] std::optional<TCatalogueListings> gUnpackCatalogue(const TVersion& rVersion,
                                                                 std::string_view sBytes);

} // namespace quorvawiz::ngspice
