#pragma once

#include <QList>
#include <QString>
#include <functional>

class QAction;
class QMainWindow;
class QMenu;

namespace quorvawiz::host
{

/// What the host's menus do.
struct THostHandlers {
    std::function<void()> fileNew, open, save, saveAs, quit;
    std::function<void()> undo, redo, cut, copy, paste, selectAll;
    std::function<void()> find, findNext, findPrevious;
    std::function<void()> zoomIn, zoomOut, zoomReset;
    std::function<void()> wizard;
    std::function<void()> openParams, devices, libraryModels, simulatorModels, deviceAtCursor;
    std::function<void()> recalculate, importNetlist;
    std::function<void()> about;
};

/// The parts of the menus that change.
struct THostActions {
    QMenu* pRecent = nullptr;
    QAction* pUndo = nullptr;
    QAction* pRedo = nullptr;
    QAction* pCut = nullptr;
    QAction* pCopy = nullptr;
    QList<QAction*> withParams; ///< those that need a params file
};

/// Gives a window its menus. Each action's object name is its handler's.
THostActions gMakeHostMenus(QMainWindow& rWindow, const THostHandlers& rHandlers);

} // namespace quorvawiz::host
