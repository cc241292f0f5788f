#include "platform/base/IsWine.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

/// Windows without a screen, and settings of a moment.
int main(int nCount, char** pArguments)
{
    testing::InitGoogleTest(&nCount, pArguments);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir home;
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    qputenv("XDG_CACHE_HOME", home.path().toLocal8Bit());
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    QCoreApplication::setOrganizationName(QStringLiteral("quorvawiz"));
    QCoreApplication::setApplicationName(QStringLiteral("quorvahost"));
    gSetIsWine(true);
    const QApplication application(nCount, pArguments);
    return RUN_ALL_TESTS();
}
