#pragma once

#include "quorvahost/tour/WizardUser.h"

#include <QString>
#include <QStringList>

class QWidget;

namespace quorvawiz::host
{

class CHostWindow;

/// What the tour works on.
struct TTourFiles {
    QString sNetlist;     ///< is opened, changed and saved
    QString sFolder;      ///< gets the pictures, and the list of devices as "devices.csv"
    QString sParams;      ///< is browsed
    QStringList imported; ///< netlists that are imported, where there is a simulator
};

/// One visit to every window of the host, as a person makes it: by keys and by the mouse.
class CTour
{
public:
    CTour(CHostWindow& rWindow, TTourFiles files);

    /// @throws CUserError when a window isn't as a person would expect it
    void Run();

private:
    void VisitEditor();
    void VisitToolsMenu();
    void VisitWizard(QWidget& rWizard);
    void InsertTemperature(QWidget& rWizard);
    void InsertTransient(QWidget& rWizard);
    void InsertAC(QWidget& rWizard);
    void InsertDC(QWidget& rWizard);
    void InsertMeasure(QWidget& rWizard);
    void VisitBrowser();
    void VisitFindBar();
    void VisitFileDialogs();
    void VisitAbout();
    void Leave();

    /// Keeps a picture of a window, with another one in front of it if there is one.
    void Picture(QWidget& rWindow, const QString& rsName, QWidget* pInFront = nullptr);

    CHostWindow& mrWindow;
    TTourFiles mFiles;
    CWizardUser mUser;
    int mnPictures = 0;
};

} // namespace quorvawiz::host
