#pragma once

#include "platform/base/StringA.h"

#include <QString>

namespace quorvawiz::host
{

/// A command as the wizard hands it over, as text: its lines joined by LF, no line end at its
/// close.
QString gCommandText(const CString& rsCommand);

} // namespace quorvawiz::host
