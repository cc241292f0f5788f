#pragma once

#include <memory>

class CQtPeer;
class CWnd;
class IWindowPeer;
class QtDesktop;

/// Draws a window by its kind.
std::unique_ptr<IWindowPeer> gMakePeer(QtDesktop& rDesktop, CWnd& rWnd);
