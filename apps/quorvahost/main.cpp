#include "platform/base/IsWine.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/HostOptions.h"
#include "quorvahost/HostWindow.h"
#include "quorvahost/WizardAlone.h"
#include "quorvawiz/version.h"

#include <QApplication>
#include <QtGlobal>
#include <csignal>
#include <cstdio>
#include <variant>

namespace
{
using namespace quorvawiz;
using namespace quorvawiz::host;

constexpr int kExitUsage = 2;

void Print(std::FILE* pStream, const QString& rsText)
{
    std::fputs(rsText.toLocal8Bit().constData(), pStream);
}

QStringList ArgumentsOf(int nCount, char** pArguments)
{
    QStringList arguments;
    for (int i = 1; i < nCount; ++i)
        arguments.append(QString::fromLocal8Bit(pArguments[i]));
    return arguments;
}

/// Qt would end the process with a core dump.
bool HasDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
           !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

int RunEditor(QtDesktop& rDesktop, const QString& rsFile)
{
    CHostWindow window(rDesktop);
    window.show();
    // Once the loop runs: a message about the file stands in front of a window that is there.
    if (!rsFile.isEmpty())
        QMetaObject::invokeMethod(
            &window, [&window, rsFile] { window.OpenFile(rsFile); }, Qt::QueuedConnection);
    return QApplication::exec();
}

int RunOnDesktop(int& rnCount, char** pArguments, const THostOptions& rOptions)
{
    if (!HasDisplay()) {
        Print(stderr, QStringLiteral("quorvahost: there is no display (neither DISPLAY nor "
                                     "WAYLAND_DISPLAY is set)\n"));
        return 1;
    }
    QCoreApplication::setOrganizationName(QStringLiteral("quorvawiz"));
    QCoreApplication::setApplicationName(QStringLiteral("quorvahost"));
    QCoreApplication::setApplicationVersion(QString::fromStdString(std::string(kVersion)));
    const QApplication application(rnCount, pArguments);
    QtDesktop desktop(QCoreApplication::organizationName(), QCoreApplication::applicationName());
    return rOptions.task == EHostTask::Wizard ? gRunWizardAlone(rOptions)
                                              : RunEditor(desktop, rOptions.sFile);
}
} // namespace

int main(int nCount, char** pArguments)
{
#ifdef Q_OS_UNIX
    gSetIsWine(true);
    // A reader that has gone is a write that fails, which has a message.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    const auto read = gReadHostOptions(ArgumentsOf(nCount, pArguments));
    if (const auto* pFault = std::get_if<TUsageFault>(&read)) {
        Print(stderr,
              QStringLiteral("quorvahost: %1\nTry \"quorvahost --help\".\n").arg(pFault->sMessage));
        return kExitUsage;
    }
    const auto& rOptions = std::get<THostOptions>(read);
    switch (rOptions.task) {
    case EHostTask::Help:
        Print(stdout, gHostHelp());
        return 0;
    case EHostTask::Version:
        Print(stdout,
              QStringLiteral("quorvahost %1\n").arg(QString::fromStdString(std::string(kVersion))));
        return 0;
    case EHostTask::Edit:
    case EHostTask::Wizard:
        return RunOnDesktop(nCount, pArguments, rOptions);
    }
    return kExitUsage;
}
