#pragma once

#include <cstdint>

struct xcb_connection_t;

namespace quorvawiz::host
{

/// The toolkit's connection to the X server, for the few things that the toolkit has no word for.
/// @return null on any other window system
xcb_connection_t* gXConnection();

/// The number of a name at the server. There is a connection.
/// @return 0 if the server doesn't answer
std::uint32_t gXAtom(const char* pName);

} // namespace quorvawiz::host
