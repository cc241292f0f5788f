#pragma once

#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{

/// Reads the listing of `listing expand`: the netlist as the simulator runs it, without subcircuits
/// and expressions, a card with all its continuations in a line "NUMBER : CARD". Other lines, the
/// title and comments are passed over.
/// @param sListing any bytes; the result leads into it
/// @return the cards in the order of the listing, without white space at their ends
[[nodiscard]] std::vector<std::string_view> gReadListing(std::string_view sListing);

} // namespace quorvawiz::ngspice
