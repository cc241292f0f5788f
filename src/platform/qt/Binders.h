#pragma once

#include "platform/qt/QtPeer.h"

#include <memory>

// One binder for each kind of control, each in a file of its own. They know controls and nothing
// of the dialogs and pages that these stand in. The parent of `rWnd` is drawn already.

std::unique_ptr<CQtPeer> gBindLabel(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindGroup(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindFrame(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindEdit(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindMultilineEdit(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindButton(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindCheckBox(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindRadio(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindCombo(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindList(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindTree(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindTable(CModelEntry& rEntry, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindTabs(CModelEntry& rEntry, CWnd& rWnd);

/// A dialog inside another.
std::unique_ptr<CQtPeer> gBindPane(CModelEntry& rEntry, CWnd& rWnd);
