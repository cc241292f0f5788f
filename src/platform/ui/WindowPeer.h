#pragma once

#include "platform/ui/Geometry.h"

#include <optional>

/// What of a window has changed. A peer then asks the window for the new value.
enum class EAspect {
    Text,
    Enabled,
    Visible,
    Place,     ///< rectangle or order among the siblings
    Items,     ///< entries, nodes, columns or rows
    Selection, ///< selected entry, node, row or tab
    Check,     ///< checked state of a button
    Expansion, ///< expanded nodes of a tree
    Focus,     ///< the window now has the focus
};

/// The desktop's side of one window; lives from the window's creation to its destruction.
class IWindowPeer
{
public:
    virtual ~IWindowPeer() = default;

    /// Pulls the new state from the window. Writes to the screen only what differs, and never
    /// calls a user action of the model from here.
    virtual void OnChanged(EAspect aspect) = 0;

    /// The size of the window's client area on the screen, in pixels, where a control shows its
    /// contents; none where nothing is drawn.
    virtual std::optional<TSize> GetClientPixels() const { return std::nullopt; }
};
