#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

/// Windows without a screen, unless the environment names one.
int main(int nCount, char** pArguments)
{
    testing::InitGoogleTest(&nCount, pArguments);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(nCount, pArguments);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setApplicationDisplayName(QStringLiteral("Window tests"));
    return RUN_ALL_TESTS();
}
