// The main of the programs that measure real windows: without a screen unless one is asked for, in
// a style that looks the same everywhere, and without the platform's remarks.

#include <benchmark/benchmark.h>

#include <QApplication>

int main(int nCount, char** pArguments)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QApplication application(nCount, pArguments);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    benchmark::Initialize(&nCount, pArguments);
    if (benchmark::ReportUnrecognizedArguments(nCount, pArguments))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
