#include "quorvahost/StartApplication.h"

#include <QString>
#include <QStringList>
#include <cstdio>
#include <cstdlib>

namespace quorvawiz::host
{
namespace
{
const char* spName = nullptr; // of the program that is starting
QStringList* spSaid = nullptr;

[[noreturn]] void End(const QString& rsWhy)
{
    std::fprintf(stderr, "%s: %s\n", spName, rsWhy.toLocal8Bit().constData());
    std::fflush(stderr);
    std::_Exit(EXIT_FAILURE);
}

/// Qt ends a program without a display by a core dump; its first message says why.
void Listen(QtMsgType type, const QMessageLogContext&, const QString& rsMessage)
{
    if (type == QtFatalMsg)
        End(spSaid->isEmpty() ? rsMessage.section(QLatin1Char('\n'), 0, 0) : spSaid->first());
    spSaid->append(rsMessage.trimmed());
}

/// The usual case, in words that need no knowledge of the toolkit.
void CheckForDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        End(QStringLiteral("there is no display (neither DISPLAY nor WAYLAND_DISPLAY is set)"));
#endif
}
} // namespace

std::unique_ptr<QApplication> gStartApplication(const char* pName, int& rnCount, char** pArguments)
{
    QStringList said;
    spName = pName;
    spSaid = &said;
    CheckForDisplay();
    const auto before = qInstallMessageHandler(Listen);
    auto pApplication = std::make_unique<QApplication>(rnCount, pArguments);
    qInstallMessageHandler(before);
    for (const QString& rsMessage : said)
        qWarning("%s", rsMessage.toLocal8Bit().constData());
    return pApplication;
}

} // namespace quorvawiz::host
