#pragma once

#include "exports/Quorvawiz.h"

#include <QString>

namespace quorvawiz::host
{

/// A text for the library.
inline CStringU gToLibrary(const QString& rsText)
{
    return {rsText.toStdU16String()};
}

/// A text of the library's.
inline QString gFromLibrary(const CStringU& rsText)
{
    return QString::fromStdU16String(rsText.ToWide());
}

} // namespace quorvawiz::host
