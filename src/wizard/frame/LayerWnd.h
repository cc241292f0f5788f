#pragma once

#include "platform/ui/Wnd.h"

#include <vector>

class CPropertyPage;

/// A stack of windows of one parent, of which one is on display. It is no window itself and owns
/// none of them.
class CLayerWnd
{
public:
    CLayerWnd() = default;
    virtual ~CLayerWnd() = default;
    CLayerWnd(const CLayerWnd&) = delete;
    CLayerWnd& operator=(const CLayerWnd&) = delete;

    /// The dialog that owns the layers. The first call counts; a further one changes nothing.
    void SetParent(CWnd* pParent);
    /// Appends a layer. Result: its index.
    int Add(CWnd* pLayer);
    /// Where the layers stand in the parent, in dialog units.
    void SetOrigin(int x, int y);

    /// Hides the current layer and shows the one with this index, creating it on its first display.
    /// An index that isn't one becomes the current index all the same, with nothing shown; the next
    /// call with layers to hide then throws CInvalidArgException. So does a call before there is a
    /// parent. Without layers nothing happens.
    void ShowLayer(int nIndex);

    int GetCurrentIndex() const { return mnCurrent; }
    int GetCount() const { return static_cast<int>(mLayers.size()); }
    /// The current layer, or null while the current index is -1. Throws CInvalidArgException when
    /// the index isn't one.
    CWnd* GetCurrentWindow() const;
    /// Gives the focus to the current layer. Result: the window that lost it, or null.
    CWnd* FocusCurrentWindow();

private:
    void ShowPage(CPropertyPage& rPage);
    void ShowPlainWindow(CWnd& rWnd);

    CWnd* mpParent = nullptr;
    int mnX = 0;
    int mnY = 0;
    int mnCurrent = -1;
    std::vector<CWnd*> mLayers;
};
