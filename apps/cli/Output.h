#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::cli
{

/// Writes to standard output and flushes it.
/// @throws std::runtime_error if it can't be written
void gWriteOut(std::string_view sText);

/// Writes one line "quorvawiz: TEXT" to standard error.
void gComplain(std::string_view sText);

/// Writes a text as one line or more to standard error, as the wizard said it.
void gWriteError(std::string_view sText);

/// Lines of a table, the columns aligned with two blanks between them and nothing behind the last.
/// Widths are counted in characters; a row may have fewer cells than others.
/// @param rRows the cells in UTF-8, without line ends
std::string gAlignColumns(const std::vector<std::vector<std::string>>& rRows);

} // namespace quorvawiz::cli
