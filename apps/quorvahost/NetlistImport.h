#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QString>
#include <QStringList>

class QProgressDialog;
class QWidget;

namespace quorvawiz::host
{

/// How an import has ended.
enum class EImportEnd {
    Done,
    Cancelled,
    Failed,
};

/// The outcome of an import.
struct TImportOutcome {
    EImportEnd end = EImportEnd::Failed;
    QString sMessage; ///< after a failure the reason; otherwise what there is to say, or nothing
};

/// The program of the command line, which stands beside this one.
QString gCommandLineProgram();

/// Lets the command line's `import` run the simulator on a netlist, as a child process, with a
/// window that shows that it is under way and can end it.
class CNetlistImport : public QObject
{
public:
    /// @param rsProgram the program of the command line
    explicit CNetlistImport(QString sProgram);
    /// Ends the child, if it still runs.
    ~CNetlistImport() override;

    /// Imports, and returns when the child has ended.
    /// @param pParent owns the window; may end meanwhile
    /// @param rsNetlist the netlist's file
    /// @param rsParams the params file to write
    TImportOutcome Run(QWidget* pParent, const QString& rsNetlist, const QString& rsParams);

    /// Ends the import that runs, as the user's Cancel does.
    void Cancel();

private:
    void EndChild();
    void Listen();
    void ShowStage(const QString& rsStage);
    TImportOutcome Outcome();

    QString msProgram;
    QProcess mChild;
    QByteArray mHeard;  ///< of a line whose end hasn't come yet
    QStringList mWords; ///< what the child has said besides its stages
    QPointer<QProgressDialog> mpProgress;
};

} // namespace quorvawiz::host
