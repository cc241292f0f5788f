#pragma once

#include "quorvahost/BrowserDialogs.h"
#include "quorvahost/DeviceAtCursor.h"
#include "quorvahost/ParamsFile.h"

#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <functional>

class CWnd;

namespace quorvawiz::host
{

class CHostWindow;

/// The host's menu "Parameters": a params file, the Parameter Browser on it, and the import of the
/// netlist that is open.
class CParameterTools : public QObject
{
public:
    /// It becomes the window's child.
    explicit CParameterTools(CHostWindow& rWindow);

    /// Asks for a params file and reads it.
    void ChooseAndOpen();

    /// Reads a params file in the place of the one there is. A failure is told in a box, and
    /// changes nothing.
    /// @return false after a failure
    bool Open(const QString& rsPath);

    /// Runs a list of the browser, and once more after each wish to recalculate.
    void Browse(EBrowserList list);

    /// Runs the details of the device whose statement the cursor is in.
    void BrowseDeviceAtCursor();

    /// Reads the file again; one that an import has made is imported again.
    /// @return false if that failed, which was told, or the user gave it up
    bool Recalculate();

    /// Imports the netlist that is open and shows its devices.
    void ImportNetlist();

    /// The program that imports; the command line beside this one unless it was set.
    void SetImportProgram(QString sProgram) { msImportProgram = std::move(sProgram); }

    const CParamsFile& File() const { return mFile; }

private:
    using TDialog = std::function<bool(CWnd* pParent, const TCircuitParams& rStore)>;

    void RunDialog(const TDialog& rDialog);
    bool Import(const QString& rsNetlist);
    bool Read(const QString& rsPath);

    CHostWindow& mrWindow;
    CParamsFile mFile;
    QString msImportedNetlist; ///< the one that the file comes from; empty: from no import
    QString msImportProgram;
    QTemporaryDir mFolder; ///< for imported files
};

} // namespace quorvawiz::host
