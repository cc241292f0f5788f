#pragma once

class QWidget;

namespace quorvawiz::host
{

/// Asks a window to close as a window manager does: on an X display by the message that one sends,
/// through the server; elsewhere by a call. Then lets everything happen that is waiting.
void gRequestClose(QWidget& rWindow);

} // namespace quorvawiz::host
