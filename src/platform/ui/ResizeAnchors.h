#pragma once

#include "platform/ui/Wnd.h"

/// How far a point of a control goes with the window's lower right corner: 0 stays, 1 goes along.
struct TAnchor {
    int nX = 0;
    int nY = 0;
    bool operator==(const TAnchor&) const = default;
};

inline constexpr TAnchor kAnchorTopLeft{0, 0};
inline constexpr TAnchor kAnchorBottomLeft{0, 1};
inline constexpr TAnchor kAnchorBottomRight{1, 1};

/// The controls of a window that follow its size.
class CResizeAnchors
{
public:
    /// From now on both corners of the control `nId` of `rWindow` keep their distance to their
    /// anchors. Nothing happens when there is no such control.
    void Add(const CWnd& rWindow, int nId, TAnchor topLeft, TAnchor bottomRight);

    /// Moves the controls to where the window's size wants them.
    void Apply(const CWnd& rWindow) const;

    void Clear() { mControls.clear(); }

private:
    struct TControl {
        int nId;
        TAnchor topLeft, bottomRight;
        TRect rect;       ///< when it was added
        TRect windowRect; ///< the window's client area then
    };
    std::vector<TControl> mControls;
};
