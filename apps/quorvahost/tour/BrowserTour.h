#pragma once

#include "quorvahost/tour/WizardUser.h"

#include <QKeySequence>
#include <QString>
#include <functional>

class QWidget;

namespace quorvawiz::host
{

class CHostWindow;

/// The part of the tour that visits the parameter browser, through the menu "Parameters".
class CBrowserTour
{
public:
    /// Keeps a picture of a window under a name, with another window in front of it, or null.
    using TPicture =
        std::function<void(QWidget& rWindow, const QString& rsName, QWidget* pInFront)>;

    CBrowserTour(CHostWindow& rWindow, CWizardUser& rUser, TPicture picture);

    /// Opens a params file, visits each window of the browser and exports the list of devices.
    /// @param rsCsv the file that the list goes to; its folder is there, the file isn't
    /// @throws CUserError when a window isn't as a person would expect it
    void VisitFile(const QString& rsParams, const QString& rsCsv);

    /// Opens a netlist, lets ngspice run on it, and looks at its devices and their classes.
    /// @throws CUserError as `VisitFile`
    void VisitNetlist(const QString& rsNetlist);

    /// Whether there is a simulator to run.
    static bool HasSimulator();

private:
    void Choose(Qt::Key key, bool bPicture = false);
    void OpenParams(const QString& rsParams);
    void VisitDevices(QWidget& rList, const QString& rsCsv);
    void VisitLibraryModels(QWidget& rList);
    void VisitSimulatorModels(QWidget& rList);
    void VisitClass(QWidget& rList, const QString& rsName);
    void VisitSheet(const QString& rsName);
    void AnswerFileDialog(QWidget& rDialog, const QString& rsFile);
    void Leave() { mrUser.Press(QKeySequence(Qt::Key_Escape)); }
    void ExpectMetAll(const char* pWhat);

    CHostWindow& mrWindow;
    CWizardUser& mrUser;
    TPicture mPicture;
    bool mbClassesVisited = false; ///< they are the same after each import
};

} // namespace quorvawiz::host
