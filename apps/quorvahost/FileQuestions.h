#pragma once

#include "quorvahost/NetlistFile.h"

#include <QString>
#include <optional>

class QWidget;

namespace quorvawiz::host
{

/// What to do with unsaved work.
enum class EUnsaved {
    Save,
    Discard,
    Cancel,
};

/// Asks about unsaved work; Escape is Cancel.
/// @param rsName the netlist's name
EUnsaved gAskAboutUnsaved(QWidget* pParent, const QString& rsName);

/// Asks whether to save over what another program wrote meanwhile; Escape is no.
bool gAskToOverwrite(QWidget* pParent, const QString& rsName);

/// Asks whether to save, so that another program reads what is in the editor; Escape is no.
/// @param rsName the netlist's name
bool gAskToSaveFirst(QWidget* pParent, const QString& rsName);

/// Shows a text that stands for itself, to the letter.
void gShowText(QWidget* pParent, const QString& rsText);

/// Tells why a file wasn't read or written.
void gShowFault(QWidget* pParent, const TFileFault& rFault);

/// Asks for a netlist to open.
/// @param rsFolder where to begin
/// @return its absolute path; nullopt if the user cancels
std::optional<QString> gAskForFileToOpen(QWidget* pParent, const QString& rsFolder);

/// Asks for a params file to open.
/// @param rsFolder where to begin
/// @return its absolute path; nullopt if the user cancels
std::optional<QString> gAskForParamsFile(QWidget* pParent, const QString& rsFolder);

/// Asks where to save; a name without an extension gets ".cir".
/// @param rsProposed a file or folder to begin with
/// @return the absolute path; nullopt if the user cancels
std::optional<QString> gAskForFileToSave(QWidget* pParent, const QString& rsProposed);

} // namespace quorvawiz::host
