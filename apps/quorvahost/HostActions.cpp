#include "quorvahost/HostActions.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>
#include <QList>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace quorvawiz::host
{
namespace
{
QString Say(const char* pEnglish)
{
    return QCoreApplication::translate("HostActions", pEnglish);
}

/// Fills one menu.
class CMenuMaker
{
public:
    CMenuMaker(QMainWindow& rWindow, const char* pName, const char* pTitle)
        : mrWindow(rWindow), mpMenu(rWindow.menuBar()->addMenu(Say(pTitle)))
    {
        mpMenu->setObjectName(QString::fromLatin1(pName));
    }

    QAction* Add(const char* pName, const char* pText, const QList<QKeySequence>& rKeys,
                 const std::function<void()>& rDo)
    {
        QAction* const pAction = mpMenu->addAction(Say(pText));
        pAction->setObjectName(QString::fromLatin1(pName));
        pAction->setShortcuts(rKeys);
        QObject::connect(pAction, &QAction::triggered, &mrWindow, rDo);
        return pAction;
    }

    QMenu* AddMenu(const char* pText) { return mpMenu->addMenu(Say(pText)); }
    void AddLine() { mpMenu->addSeparator(); }

private:
    QMainWindow& mrWindow;
    QMenu* mpMenu;
};
} // namespace

THostActions gMakeHostMenus(QMainWindow& rWindow, const THostHandlers& rHandlers)
{
    THostActions actions;

    CMenuMaker file(rWindow, "file", "&File");
    file.Add("fileNew", "&New", {QKeySequence::New}, rHandlers.fileNew);
    file.Add("open", "&Open...", {QKeySequence::Open}, rHandlers.open);
    actions.pRecent = file.AddMenu("Open &Recent");
    actions.pRecent->setObjectName(QStringLiteral("recent"));
    file.AddLine();
    file.Add("save", "&Save", {QKeySequence::Save}, rHandlers.save);
    file.Add("saveAs", "Save &As...", {Qt::CTRL | Qt::SHIFT | Qt::Key_S}, rHandlers.saveAs);
    file.AddLine();
    file.Add("quit", "&Quit", {Qt::CTRL | Qt::Key_Q}, rHandlers.quit);

    CMenuMaker edit(rWindow, "edit", "&Edit");
    actions.pUndo = edit.Add("undo", "&Undo", {QKeySequence::Undo}, rHandlers.undo);
    actions.pRedo = edit.Add(
        "redo", "&Redo", {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}, rHandlers.redo);
    edit.AddLine();
    actions.pCut = edit.Add("cut", "Cu&t", {QKeySequence::Cut}, rHandlers.cut);
    actions.pCopy = edit.Add("copy", "&Copy", {QKeySequence::Copy}, rHandlers.copy);
    edit.Add("paste", "&Paste", {QKeySequence::Paste}, rHandlers.paste);
    edit.Add("selectAll", "Select &All", {QKeySequence::SelectAll}, rHandlers.selectAll);
    edit.AddLine();
    edit.Add("find", "&Find...", {QKeySequence::Find}, rHandlers.find);
    edit.Add("findNext", "Find &Next", {Qt::Key_F3}, rHandlers.findNext);
    edit.Add("findPrevious", "Find Pre&vious", {Qt::SHIFT | Qt::Key_F3}, rHandlers.findPrevious);

    CMenuMaker view(rWindow, "view", "&View");
    view.Add("zoomIn", "Zoom &In", {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal},
             rHandlers.zoomIn);
    view.Add("zoomOut", "Zoom &Out", {Qt::CTRL | Qt::Key_Minus}, rHandlers.zoomOut);
    view.Add("zoomReset", "&Reset Zoom", {Qt::CTRL | Qt::Key_0}, rHandlers.zoomReset);

    CMenuMaker tools(rWindow, "tools", "&Tools");
    tools.Add("wizard", "SPICE Command &Wizard...", {Qt::CTRL | Qt::Key_I}, rHandlers.wizard);

    CMenuMaker parameters(rWindow, "parameters", "&Parameters");
    parameters.Add("openParams", "&Open Params File...", {Qt::CTRL | Qt::SHIFT | Qt::Key_O},
                   rHandlers.openParams);
    parameters.Add("importNetlist", "&Import from ngspice...", {Qt::CTRL | Qt::SHIFT | Qt::Key_I},
                   rHandlers.importNetlist);
    parameters.AddLine();
    actions.withParams = {
        parameters.Add("devices", "&Devices...", {Qt::CTRL | Qt::SHIFT | Qt::Key_D},
                       rHandlers.devices),
        parameters.Add("libraryModels", "&Library Models...", {}, rHandlers.libraryModels),
        parameters.Add("simulatorModels", "&Simulator Models...", {}, rHandlers.simulatorModels),
        parameters.Add("deviceAtCursor", "Device at &Cursor...", {Qt::CTRL | Qt::Key_D},
                       rHandlers.deviceAtCursor)};
    parameters.AddLine();
    actions.withParams.append(
        parameters.Add("recalculate", "&Recalculate", {Qt::Key_F5}, rHandlers.recalculate));

    CMenuMaker help(rWindow, "help", "&Help");
    help.Add("about", "&About quorvahost", {}, rHandlers.about);
    return actions;
}

} // namespace quorvawiz::host
