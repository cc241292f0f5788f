#include "platform/base/IsWine.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/HostWindow.h"
#include "quorvahost/StartApplication.h"
#include "quorvahost/tour/Tour.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>
#include <QStringList>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <cstdio>
#include <exception>

namespace
{
using namespace quorvawiz::host;

constexpr int kExitUsage = 2;

QPalette DarkPalette()
{
    const QColor ground(0x35373B), base(0x1E1F22), text(0xDFE1E5), faint(0x7A7E85);
    const QColor highlight(0x2E6FBF);
    QPalette palette(text, ground, ground.lighter(160), base, ground.lighter(120), text, text, base,
                     ground);
    palette.setColor(QPalette::AlternateBase, ground);
    palette.setColor(QPalette::ToolTipBase, ground);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, highlight.lighter(150));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}
} // namespace

/// quorvahost-tour [--dark] FILE FOLDER PARAMS [NETLIST...]: a tour through the host's windows on a
/// netlist, which it changes and saves, and through those of the parameter browser on a params
/// file; the folder gets a picture of each. Where there is a simulator, the other netlists are
/// imported.
int main(int nCount, char** pArguments)
{
    gSetIsWine(true);
    const auto pApplication = gStartApplication("quorvahost-tour", nCount, pArguments);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool bDark = arguments.value(0) == QStringLiteral("--dark");
    if (bDark)
        arguments.removeFirst();
    if (arguments.size() < 3) {
        std::fputs("usage: quorvahost-tour [--dark] FILE FOLDER PARAMS [NETLIST...]\n", stderr);
        return kExitUsage;
    }
    const QTemporaryDir settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    QCoreApplication::setOrganizationName(QStringLiteral("quorvawiz"));
    QCoreApplication::setApplicationName(QStringLiteral("quorvahost"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (bDark)
        QApplication::setPalette(DarkPalette());

    try {
        QtDesktop desktop(QCoreApplication::organizationName(),
                          QCoreApplication::applicationName());
        CHostWindow window(desktop);
        CTour(window, {arguments[0], arguments[1], arguments[2], arguments.mid(3)}).Run();
    } catch (const std::exception& rError) {
        std::fprintf(stderr, "quorvahost-tour: %s\n", rError.what());
        return 1;
    }
    return 0;
}
