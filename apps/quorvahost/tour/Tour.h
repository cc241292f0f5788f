#pragma once

#include "quorvahost/tour/WizardUser.h"

#include <QString>

class QWidget;

namespace quorvawiz::host
{

class CHostWindow;

/// One visit to every window of the host, as a person makes it: by keys and by the mouse.
class CTour
{
public:
    /// `rsFile`: the netlist that is opened, changed and saved; `rsFolder`: gets the pictures.
    CTour(CHostWindow& rWindow, QString sFile, QString sFolder);

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
    void VisitFindBar();
    void VisitFileDialogs();
    void VisitAbout();
    void Leave();

    /// Keeps a picture of a window, with another one in front of it if there is one.
    void Picture(QWidget& rWindow, const char* pName, QWidget* pInFront = nullptr);

    CHostWindow& mrWindow;
    QString msFile;
    QString msFolder;
    CWizardUser mUser;
    int mnPictures = 0;
};

} // namespace quorvawiz::host
