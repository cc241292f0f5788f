#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <iostream>

namespace
{
/// What the screenless platform says of itself, and Qt Test of a key that nobody wants, is no news.
void WriteNews(QtMsgType, const QMessageLogContext&, const QString& rsMessage)
{
    if (!rsMessage.startsWith(QLatin1String("This plugin does not support")) &&
        !rsMessage.startsWith(QLatin1String("Keyboard event not accepted")))
        std::cerr << rsMessage.toStdString() << '\n';
}
} // namespace

/// Windows without a screen, unless the environment names one.
int main(int nCount, char** pArguments)
{
    testing::InitGoogleTest(&nCount, pArguments);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(WriteNews);
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(nCount, pArguments);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setApplicationDisplayName(QStringLiteral("Window tests"));
    return RUN_ALL_TESTS();
}
