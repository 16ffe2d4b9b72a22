#pragma once

#include "platform/base/Geometry.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tumble {

// Device pixels: whole ones, x to the right, y downwards.

struct PixelPoint {
    int x = 0;
    int y = 0;
    friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

struct PixelRect;

struct PixelSize {
    int width = 0;
    int height = 0;

    bool empty() const { return width < 1 || height < 1; }
    /// The block of that size with its upper left corner on a pixel.
    PixelRect at(PixelPoint corner) const;

    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

/// A block of pixels, all four edges included.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = -1;
    int bottom = -1;

    int width() const { return right - left + 1; }
    int height() const { return bottom - top + 1; }
    PixelSize size() const { return {width(), height()}; }
    PixelPoint corner() const { return {left, top}; }
    bool empty() const { return right < left || bottom < top; }
    bool contains(const PixelRect& other) const {
        return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
    }
    PixelRect intersected(const PixelRect& other) const {
        return {.left = std::max(left, other.left),
                .top = std::max(top, other.top),
                .right = std::min(right, other.right),
                .bottom = std::min(bottom, other.bottom)};
    }
    /// Without so many columns on the right and left, and so many rows above and below.
    PixelRect inset(int columns, int rows) const {
        return {.left = left + columns, .top = top + rows, .right = right - columns, .bottom = bottom - rows};
    }
    /// The smallest block that holds both, of which none is empty.
    PixelRect united(const PixelRect& other) const {
        return {.left = std::min(left, other.left),
                .top = std::min(top, other.top),
                .right = std::max(right, other.right),
                .bottom = std::max(bottom, other.bottom)};
    }
    /// The smallest block that holds all of this one that `cover` leaves to see.
    PixelRect without(const PixelRect& cover) const { return uncovered(*this, cover, 1); }

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

inline PixelRect PixelSize::at(PixelPoint corner) const {
    return {.left = corner.x, .top = corner.y, .right = corner.x + width - 1, .bottom = corner.y + height - 1};
}

/// The four sides of a box outline drawn inside `box` with a pen so many pixels wide.
std::array<PixelRect, 4> boxSides(const PixelRect& box, int pen);

/// The pixels that a level or upright line of a pen's width covers inside `item`, moved in where it would reach out.
PixelRect stroke(PixelPoint from, PixelPoint to, int pen, const PixelRect& item);

/// The pixels that a slanting line covers inside `item`, a block for each row; the mirrored line covers the mirrored
/// pixels.
std::vector<PixelRect> slant(PixelPoint from, PixelPoint to, int pen, const PixelRect& item);

} // namespace tumble
