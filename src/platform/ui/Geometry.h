#pragma once

/// A point, in dialog units (x: a quarter of the mean letter width, y: an eighth of the line
/// height).
struct TPoint {
    int x = 0;
    int y = 0;
    bool operator==(const TPoint&) const = default;
};

/// A size, in dialog units.
struct TSize {
    int cx = 0;
    int cy = 0;
    bool operator==(const TSize&) const = default;
};

/// A rectangle, in dialog units of its parent's client area.
struct TRect {
    int x = 0; ///< left
    int y = 0; ///< top
    int w = 0; ///< width
    int h = 0; ///< height

    constexpr int Right() const { return x + w; }
    constexpr int Bottom() const { return y + h; }

    /// True when both rectangles share at least one unit square.
    constexpr bool Overlaps(const TRect& rOther) const
    {
        return x < rOther.Right() && rOther.x < Right() && y < rOther.Bottom() &&
               rOther.y < Bottom();
    }

    /// True when `rInner` lies inside this rectangle, its edges included.
    constexpr bool Contains(const TRect& rInner) const
    {
        return rInner.x >= x && rInner.y >= y && rInner.Right() <= Right() &&
               rInner.Bottom() <= Bottom();
    }

    bool operator==(const TRect&) const = default;
};
