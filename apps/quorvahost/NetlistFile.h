#pragma once

#include "quorvahost/NetlistText.h"

#include <QDateTime>
#include <QString>
#include <optional>
#include <variant>

namespace quorvawiz::host
{

/// What tells one state of a file from another without reading it.
struct TFileStamp {
    bool bExists = false;
    qint64 nSize = 0; ///< bytes
    QDateTime modified;

    bool operator==(const TFileStamp&) const = default;
};

/// A netlist with the state of the file that it came from.
struct TNetlistFile {
    TNetlistText netlist;
    TFileStamp stamp;
};

/// Why a file wasn't read or written, for the user, with the path and the system's words, without a
/// full stop.
struct TFileFault {
    QString sMessage;
};

/// The largest file that is opened, in bytes: the editor counts characters in int.
inline constexpr qint64 kLargestFile = qint64{512} * 1024 * 1024;

/// The state of a file now.
TFileStamp gStampOf(const QString& rsPath);

/// Reads a netlist. Only regular files up to `kLargestFile` are read, and only such whose bytes
/// `gDecodeNetlist` accepts.
std::variant<TNetlistFile, TFileFault> gReadNetlistFile(const QString& rsPath);

/// Writes a netlist in one step: the file holds either what it held before or all of the text. The
/// file's permissions stay, a symbolic link goes on pointing to it.
/// @return the fault, or nullopt if the text is in the file
std::optional<TFileFault> gWriteNetlistFile(const QString& rsPath, QStringView sText,
                                            TTextForm form);

} // namespace quorvawiz::host
