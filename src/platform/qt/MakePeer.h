#pragma once

#include <memory>

class CQtPeer;
class CWnd;
class IWindowPeer;
class CModelEntry;

/// Draws a window by its kind.
std::unique_ptr<IWindowPeer> gMakePeer(CModelEntry& rEntry, CWnd& rWnd);
