#pragma once

#include "browser/ParamTable.h"
#include "foundation/StringU.h"

/// A row as a line of comma-separated values, without a line end. A text with a comma stands in
/// double quotes, unless it begins with one; an empty text becomes one blank; any other stands as
/// it is, also with quotes or line ends in it.
/// @param rRow the cells
[[nodiscard]] CStringU gMakeCsvLine(const TParamTableRow& rRow);

/// The text that an export writes: the line of each row with a line feed behind it. There is no
/// line of titles.
/// @param rTable the table
[[nodiscard]] CStringU gMakeExportText(const TParamTableData& rTable);
