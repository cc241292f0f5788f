#pragma once

#include "platform/qt/QtPeer.h"

#include <memory>

// One binder for each kind of control, each in a file of its own. They know controls and nothing
// of the dialogs and pages that these stand in. The parent of `rWnd` is drawn already.

std::unique_ptr<CQtPeer> gBindLabel(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindGroup(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindFrame(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindEdit(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindMultilineEdit(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindButton(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindCheckBox(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindRadio(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindCombo(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindList(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindTree(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindTable(QtDesktop& rDesktop, CWnd& rWnd);
std::unique_ptr<CQtPeer> gBindTabs(QtDesktop& rDesktop, CWnd& rWnd);

/// A dialog inside another.
std::unique_ptr<CQtPeer> gBindPane(QtDesktop& rDesktop, CWnd& rWnd);
