#include "quorvahost/HostOptions.h"

#include <optional>

namespace quorvawiz::host
{
namespace
{
/// Reads one argument after the other.
class CReader
{
public:
    explicit CReader(const QStringList& rArguments) : mrArguments(rArguments) {}

    std::variant<THostOptions, TUsageFault> Read()
    {
        bool bOptionsEnded = false;
        while (mnNext < mrArguments.size() && !mFault) {
            const QString& rsArgument = mrArguments[mnNext++];
            if (!bOptionsEnded && rsArgument == QStringLiteral("--"))
                bOptionsEnded = true;
            else if (!bOptionsEnded && rsArgument.startsWith(QLatin1Char('-')) &&
                     rsArgument.size() > 1)
                ReadOption(rsArgument);
            else
                TakeFile(rsArgument);
        }
        if (!mFault)
            CheckTogether();
        if (mFault)
            return *mFault;
        return mOptions;
    }

private:
    void Refuse(const QString& rsMessage)
    {
        if (!mFault)
            mFault = TUsageFault{rsMessage};
    }

    void ReadOption(const QString& rsArgument)
    {
        const qsizetype nEqual = rsArgument.indexOf(QLatin1Char('='));
        const QString sName = rsArgument.left(nEqual);
        const bool bHasValue = nEqual >= 0;
        if (sName == QStringLiteral("--append"))
            return ReadAppend(Value(bHasValue, rsArgument.mid(nEqual + 1)));
        if (sName == QStringLiteral("--browse"))
            return ReadBrowse(Value(bHasValue, rsArgument.mid(nEqual + 1)));
        if (sName == QStringLiteral("--list"))
            return ReadList(Value(bHasValue, rsArgument.mid(nEqual + 1)));
        if (bHasValue && sName.startsWith(QStringLiteral("--")) && IsFlag(sName))
            return Refuse(QStringLiteral("%1 takes no value").arg(sName));
        if (sName == QStringLiteral("--wizard") && !bHasValue)
            mbWizard = true;
        else if (sName == QStringLiteral("--clipboard") && !bHasValue)
            SetSink(ECommandSink::Clipboard);
        else if ((sName == QStringLiteral("--help") || sName == QStringLiteral("-h")) && !bHasValue)
            mOptions.task = EHostTask::Help;
        else if (sName == QStringLiteral("--import") && !bHasValue)
            mOptions.bImport = true;
        else if (sName == QStringLiteral("--version") && !bHasValue)
            mbVersion = true;
        else
            Refuse(QStringLiteral("unknown option: %1").arg(rsArgument));
    }

    static bool IsFlag(const QString& rsName)
    {
        return QStringList{QStringLiteral("--wizard"), QStringLiteral("--clipboard"),
                           QStringLiteral("--import"), QStringLiteral("--help"),
                           QStringLiteral("--version")}
            .contains(rsName);
    }

    /// An option's value: behind its "=", or the next argument.
    QString Value(bool bHasValue, const QString& rsValue)
    {
        if (bHasValue)
            return rsValue;
        return mnNext < mrArguments.size() ? mrArguments[mnNext++] : QString();
    }

    void ReadAppend(const QString& rsFile)
    {
        if (rsFile.isEmpty())
            return Refuse(QStringLiteral("--append needs a file"));
        SetSink(ECommandSink::File);
        msAppend = rsFile;
    }

    void ReadBrowse(const QString& rsFile)
    {
        if (rsFile.isEmpty())
            return Refuse(QStringLiteral("--browse needs a file"));
        if (!msBrowse.isEmpty())
            return Refuse(QStringLiteral("give --browse once"));
        msBrowse = rsFile;
    }

    void ReadList(const QString& rsName)
    {
        const QStringList names{QStringLiteral("devices"), QStringLiteral("library-models"),
                                QStringLiteral("simulator-models")};
        const qsizetype nFound = names.indexOf(rsName);
        if (nFound < 0)
            return Refuse(QStringLiteral("--list is one of: %1").arg(names.join(", ")));
        mbListGiven = true;
        mOptions.list = static_cast<EBrowserList>(nFound);
    }

    void SetSink(ECommandSink sink)
    {
        if (mbSinkGiven)
            return Refuse(QStringLiteral("give --append or --clipboard, once"));
        mbSinkGiven = true;
        mOptions.sink = sink;
    }

    void TakeFile(const QString& rsFile)
    {
        if (rsFile.isEmpty())
            return Refuse(QStringLiteral("a file's name is empty"));
        if (!mOptions.sFile.isEmpty())
            return Refuse(QStringLiteral("more than one file: %1").arg(rsFile));
        mOptions.sFile = rsFile;
    }

    void CheckTogether()
    {
        if (mOptions.task == EHostTask::Help)
            return;
        if (mbVersion) {
            mOptions.task = EHostTask::Version;
            return;
        }
        if (mOptions.bImport && (mbWizard || !msBrowse.isEmpty() || mOptions.sFile.isEmpty()))
            return Refuse(QStringLiteral("--import goes with a netlist to open"));
        if (mbListGiven && msBrowse.isEmpty())
            return Refuse(QStringLiteral("--list goes with --browse"));
        if (!msBrowse.isEmpty()) {
            if (mbWizard || mbSinkGiven || !mOptions.sFile.isEmpty())
                return Refuse(QStringLiteral("--browse takes its file and nothing else"));
            mOptions.task = EHostTask::Browse;
            mOptions.sFile = msBrowse;
            return;
        }
        if (!mbWizard && mbSinkGiven)
            return Refuse(QStringLiteral("--append and --clipboard go with --wizard"));
        if (mbWizard && !mOptions.sFile.isEmpty())
            return Refuse(
                QStringLiteral("--wizard takes no file; --append FILE adds commands to one"));
        if (mbWizard) {
            mOptions.task = EHostTask::Wizard;
            mOptions.sFile = msAppend;
        }
    }

    const QStringList& mrArguments;
    qsizetype mnNext = 0;
    THostOptions mOptions;
    QString msAppend;
    QString msBrowse;
    bool mbWizard = false;
    bool mbVersion = false;
    bool mbListGiven = false;
    bool mbSinkGiven = false;
    std::optional<TUsageFault> mFault;
};
} // namespace

std::variant<THostOptions, TUsageFault> gReadHostOptions(const QStringList& rArguments)
{
    return CReader(rArguments).Read();
}

QString gHostHelp()
{
    return QStringLiteral(R"(usage: quorvahost [FILE [--import]]
       quorvahost --wizard [--append FILE | --clipboard]
       quorvahost --browse FILE [--list LIST]

Opens an editor for SPICE netlists; Tools > SPICE Command Wizard inserts commands at the cursor, and
Parameters shows what a params file knows of the circuit.

  --import       import the netlist from ngspice at once and show its devices
  --wizard       open the wizard alone and print each inserted command at once
  --append FILE  with --wizard: add each command to the end of FILE instead
  --clipboard    with --wizard: put each command on the clipboard instead
  --browse FILE  open the parameter browser alone, on a params file
  --list LIST    with --browse: devices (the default), library-models or simulator-models
  --version      print the version
  --help, -h     this text

Exit code: 0 done, 1 something couldn't be read or written or no window can be shown (no display), 2
the command line isn't understood.

Where no clipboard manager runs, --clipboard goes on after the wizard, without a window, until another
program takes the clipboard.
)");
}

} // namespace quorvawiz::host
