#pragma once

#include "quorvahost/BrowserDialogs.h"

#include <QString>
#include <QStringList>
#include <variant>

namespace quorvawiz::host
{

/// What the program is asked to do.
enum class EHostTask {
    Edit,   ///< open the editor
    Wizard, ///< open the wizard alone
    Browse, ///< open the parameter browser alone
    Help,
    Version,
};

/// Where a wizard that runs alone puts the commands.
enum class ECommandSink {
    Output,    ///< standard output
    File,      ///< the end of a file
    Clipboard, ///< in the place of what is there
};

/// The command line, understood.
struct THostOptions {
    EHostTask task = EHostTask::Edit;
    ECommandSink sink = ECommandSink::Output;
    QString sFile;                             ///< to edit, append to or browse; empty: none
    EBrowserList list = EBrowserList::Devices; ///< of the browser
    bool bImport = false;                      ///< imports the netlist that it opens

    bool operator==(const THostOptions&) const = default;
};

/// Why a command line isn't understood, in words without a full stop.
struct TUsageFault {
    QString sMessage;
};

/// Reads the arguments behind the program's name.
std::variant<THostOptions, TUsageFault> gReadHostOptions(const QStringList& rArguments);

/// What `--help` prints, with a line feed at the end.
QString gHostHelp();

} // namespace quorvawiz::host
