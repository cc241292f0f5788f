#pragma once

#include "foundation/StringU.h"

class CWnd;

/// The path that was chosen last in an export's dialog; empty at first. One for the process, and
/// gone with it.
[[nodiscard]] CStringU& gGetLastExportPath() noexcept;

/// Writes a table's CSV text to a file: in the system's code page, with a carriage return in front
/// of each line feed, without other carriage returns, and up to the first zero. A file that is
/// there is replaced.
/// @param rsPath the file
/// @param rsText the text
/// @return an empty text, or why it couldn't be written
[[nodiscard]] CStringU gWriteExport(const CStringU& rsPath, const CStringU& rsText);

/// Asks the user for a file, beginning where the last export went, and writes a table's CSV text
/// to it. If it can't be written, nobody is told.
/// @param rsText the text (gMakeExportText)
/// @param pOwner the window that the file dialog belongs to, may be null
void gExportToFile(const CStringU& rsText, const CWnd* pOwner);
