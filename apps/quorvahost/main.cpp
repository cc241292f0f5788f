#include "platform/base/IsWine.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/BrowseAlone.h"
#include "quorvahost/HostOptions.h"
#include "quorvahost/HostWindow.h"
#include "quorvahost/StartApplication.h"
#include "quorvahost/SystemWords.h"
#include "quorvahost/WizardAlone.h"
#include "quorvawiz/version.h"

#include <QApplication>
#include <QtGlobal>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <variant>

namespace
{
using namespace quorvawiz;
using namespace quorvawiz::host;

constexpr int kExitUsage = 2;

/// Prints what was asked for; returns the exit code.
int Print(const QString& rsText)
{
    errno = 0;
    if (std::fputs(rsText.toLocal8Bit().constData(), stdout) >= 0 && std::fflush(stdout) == 0)
        return 0;
    std::fprintf(stderr, "quorvahost: can't write to standard output: %s\n",
                 gSystemWords(errno).toLocal8Bit().constData());
    return 1;
}

QStringList ArgumentsOf(int nCount, char** pArguments)
{
    QStringList arguments;
    for (int i = 1; i < nCount; ++i)
        arguments.append(QString::fromLocal8Bit(pArguments[i]));
    return arguments;
}

int RunEditor(QtDesktop& rDesktop, const THostOptions& rOptions)
{
    CHostWindow window(rDesktop);
    if (!rOptions.sFile.isEmpty())
        window.OpenFileOnceShown(rOptions.sFile, rOptions.bImport);
    window.show();
    return QApplication::exec();
}

int RunOnDesktop(int& rnCount, char** pArguments, const THostOptions& rOptions)
{
    QCoreApplication::setOrganizationName(QStringLiteral("quorvawiz"));
    QCoreApplication::setApplicationName(QStringLiteral("quorvahost"));
    QCoreApplication::setApplicationVersion(QString::fromStdString(std::string(kVersion)));
    const auto pApplication = gStartApplication("quorvahost", rnCount, pArguments);
    QtDesktop desktop(QCoreApplication::organizationName(), QCoreApplication::applicationName());
    switch (rOptions.task) {
    case EHostTask::Wizard:
        return gRunWizardAlone(rOptions);
    case EHostTask::Browse:
        return gRunBrowseAlone(rOptions);
    case EHostTask::Edit:
    case EHostTask::Help:
    case EHostTask::Version:
        break;
    }
    return RunEditor(desktop, rOptions);
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
        std::fprintf(stderr, "quorvahost: %s\nTry \"quorvahost --help\".\n",
                     pFault->sMessage.toLocal8Bit().constData());
        return kExitUsage;
    }
    const auto& rOptions = std::get<THostOptions>(read);
    switch (rOptions.task) {
    case EHostTask::Help:
        return Print(gHostHelp());
    case EHostTask::Version:
        return Print(
            QStringLiteral("quorvahost %1\n").arg(QString::fromStdString(std::string(kVersion))));
    case EHostTask::Edit:
    case EHostTask::Wizard:
    case EHostTask::Browse:
        return RunOnDesktop(nCount, pArguments, rOptions);
    }
    return kExitUsage;
}
