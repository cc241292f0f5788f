#include "quorvahost/ParameterTools.h"

#include "exports/Quorvawiz.h"
#include "platform/qt/HostWidget.h"
#include "quorvahost/FileQuestions.h"
#include "quorvahost/HostWindow.h"
#include "quorvahost/LibraryText.h"
#include "quorvahost/NetlistEdit.h"
#include "quorvahost/NetlistImport.h"
#include "quorvahost/Sentence.h"
#include "quorvahost/WaitPointer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextDocument>

namespace quorvawiz::host
{
namespace
{
QString Say(const char* pEnglish)
{
    return QCoreApplication::translate("ParameterTools", pEnglish);
}

constexpr int kShortly = 3000; // in milliseconds
} // namespace

CParameterTools::CParameterTools(CHostWindow& rWindow)
    : QObject(&rWindow), mrWindow(rWindow), msImportProgram(gCommandLineProgram())
{
}

void CParameterTools::ChooseAndOpen()
{
    const QString sBeside = mFile.IsLoaded() && msImportedNetlist.isEmpty()
                                ? QFileInfo(mFile.Path()).absolutePath()
                                : mrWindow.Folder();
    if (const auto path = gAskForParamsFile(&mrWindow, sBeside))
        Open(*path);
}

bool CParameterTools::Open(const QString& rsPath)
{
    if (!Read(QFileInfo(rsPath).absoluteFilePath()))
        return false;
    msImportedNetlist.clear();
    return true;
}

bool CParameterTools::Read(const QString& rsPath)
{
    const auto fault = [&] {
        const CWaitPointer wait;
        return mFile.Load(rsPath);
    }();
    if (fault) {
        gShowText(&mrWindow, *fault);
        return false;
    }
    mrWindow.ShowParams(QFileInfo(rsPath).fileName());
    mrWindow.statusBar()->showMessage(Say("Parameters read"), kShortly);
    return true;
}

void CParameterTools::Browse(EBrowserList list)
{
    RunDialog([list](CWnd* pParent, const TCircuitParams& rStore) {
        return gBrowse(list, pParent, rStore);
    });
}

void CParameterTools::BrowseDeviceAtCursor()
{
    const QTextDocument& rText = *mrWindow.Edit().document();
    const TLines lines{rText.blockCount(),
                       [&rText](int n) { return rText.findBlockByNumber(n).text(); }};
    const auto found = gDeviceAt(lines, mrWindow.Edit().textCursor().blockNumber());
    if (const auto* const pNone = std::get_if<TNoDevice>(&found)) {
        gShowText(&mrWindow, gAsSentence(pNone->sWhy));
        return;
    }
    auto device = std::get<TDeviceName>(found);
    // ngspice keeps all names in lower case.
    if (!msImportedNetlist.isEmpty())
        device = {device.sSubckt.toLower(), device.sName.toLower()};
    RunDialog([device](CWnd* pParent, const TCircuitParams& rStore) {
        return gInvokeDeviceDetailsDialog(pParent, rStore, gToLibrary(device.sSubckt),
                                          gToLibrary(device.sName));
    });
}

void CParameterTools::RunDialog(const TDialog& rDialog)
{
    for (bool bAgain = mFile.IsLoaded(); bAgain;) {
        // The window may end while the dialog runs, and with it the file.
        const auto pStore = mFile.Store();
        bAgain = false;
        const bool bStays =
            mrWindow.RunInFront({.sWhat = Say("the parameter browser has ended: %1"),
                                 .run = [&] { bAgain = rDialog(gWindowOf(&mrWindow), *pStore); }});
        bAgain = bStays && bAgain && Recalculate();
    }
}

bool CParameterTools::Recalculate()
{
    return msImportedNetlist.isEmpty() ? Read(mFile.Path()) : Import(msImportedNetlist);
}

void CParameterTools::ImportNetlist()
{
    if (mrWindow.SaveForOthers() && Import(mrWindow.Path()))
        Browse(EBrowserList::Devices);
}

bool CParameterTools::Import(const QString& rsNetlist)
{
    // What the simulator reads is the file.
    if (rsNetlist == mrWindow.Path() && !mrWindow.SaveForOthers())
        return false;
    const QString sParams =
        QDir(mFolder.path())
            .filePath(QFileInfo(rsNetlist).completeBaseName() + QStringLiteral(".params"));
    CNetlistImport import(msImportProgram);
    TImportOutcome outcome;
    const bool bStays =
        mrWindow.RunInFront({.sWhat = Say("the import has ended: %1"),
                             .run = [&] { outcome = import.Run(&mrWindow, rsNetlist, sParams); },
                             .end = [&import] { import.Cancel(); }});
    if (!bStays || outcome.end == EImportEnd::Cancelled)
        return false;
    if (outcome.end == EImportEnd::Failed) {
        gShowText(&mrWindow, outcome.sMessage);
        return false;
    }
    if (!Read(sParams))
        return false;
    msImportedNetlist = rsNetlist;
    if (!outcome.sMessage.isEmpty())
        mrWindow.statusBar()->showMessage(outcome.sMessage.section(QLatin1Char('\n'), 0, 0));
    return true;
}

} // namespace quorvawiz::host
