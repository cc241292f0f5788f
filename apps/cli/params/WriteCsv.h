#pragma once

#include "browser/ParamTable.h"

#include <string>

namespace quorvawiz::cli
{

/// Writes a table as the browser's export does: in the system's code page, a line of
/// comma-separated values for each row, lines ending in CR LF.
/// @param bHeader a line of the columns' titles comes first, which the export doesn't have
/// @param rsFile the file; "-" is the standard output
/// @return the program's exit code: kNothingDone where the file can't be written, which is told on
///         standard error
int gWriteCsv(const TParamTableData& rTable, bool bHeader, const std::string& rsFile);

} // namespace quorvawiz::cli
