// The smallest host: it sees installed headers and the two installed libraries, nothing else. It
// shows the real wizard on its own widget and closes it as soon as it is up.

#include "exports/Quorvawiz.h"
#include "platform/qt/QtDesktop.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>
#include <iostream>

int main(int nCount, char** pArguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(nCount, pArguments);
    const QTemporaryDir folder;
    QtDesktop desktop(folder.filePath("profile.ini"));
    QWidget window;
    window.show();

    QString sTitle;
    QMetaObject::invokeMethod(
        &window,
        [&] {
            if (const QWidget* const pWizard = QApplication::activeModalWidget())
                sTitle = pWizard->windowTitle();
            desktop.EnterModel([&desktop] { desktop.EndModalRuns(); });
        },
        Qt::QueuedConnection);
    quorvawiz::gInvokeSpiceCommandWizard(gWindowOf(&window), nullptr);
    std::cout << "the window was \"" << sTitle.toStdString() << "\"\n";
    return sTitle == "SPICE Command Wizard" ? 0 : 1;
}
