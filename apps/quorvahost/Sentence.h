#pragma once

#include <QString>

namespace quorvawiz::host
{

/// A message as a box shows it: with a capital in front and a full stop. The same message stands on
/// standard error behind the program's name as it is.
inline QString gAsSentence(const QString& rsMessage)
{
    return rsMessage.left(1).toUpper() + rsMessage.mid(1) + QLatin1Char('.');
}

} // namespace quorvawiz::host
