#pragma once

namespace quorvawiz::host
{

/// What a program puts on an X clipboard goes with it, unless a clipboard manager runs. Without one
/// this stays until another program takes the clipboard, after a word about it on standard error.
/// Returns at once if this program does not have the clipboard, and on other window systems, where
/// keeping it is the desktop's affair.
void gKeepClipboard();

} // namespace quorvawiz::host
