#pragma once

namespace quorvawiz::host
{

/// What a program puts on an X clipboard goes with it, unless a clipboard manager runs. Without one
/// this stays until another program takes the clipboard, after a word about it on standard error.
/// Returns at once if this program doesn't have the clipboard, and on other window systems, where
/// the desktop keeps what is there.
void gKeepClipboard();

} // namespace quorvawiz::host
