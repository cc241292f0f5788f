#pragma once

#include <string>
#include <string_view>

namespace quorvawiz::cli
{

/// Whether a text is well-formed UTF-8.
bool gIsUtf8(std::string_view sText);

/// A text that stays in one line and does nothing to a terminal: every control character and every
/// byte that isn't UTF-8 is written as \xNN. The result is UTF-8 and holds no NUL.
/// @param sText UTF-8, as far as it goes
std::string gPrintable(std::string_view sText);

/// A text in quotation marks for a message, cut where it is long, else as `gPrintable` writes it.
/// @param sText UTF-8, as far as it goes
std::string gQuoted(std::string_view sText);

} // namespace quorvawiz::cli
