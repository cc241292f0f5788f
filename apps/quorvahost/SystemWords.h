#pragma once

#include "platform/base/SystemError.h"

#include <QString>

namespace quorvawiz::host
{

/// The system's words for one of its error codes, without a full stop.
/// @param nCode an `errno`
inline QString gSystemWords(int nCode)
{
    return QString::fromStdU16String(gSystemErrorMessageWide(nCode));
}

} // namespace quorvawiz::host
