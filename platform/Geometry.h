#pragma once

#include <algorithm>
#include <cstdint>

namespace tumble {

/// 24 bits, 0xBBGGRR: red in the low byte.
using Colour = std::int32_t;

/// The colour of the window around a picture box, whatever the player's theme; the desktop knows it when it paints.
inline constexpr Colour windowColour = -1;

/// How many twips one pixel of an unscaled screen is wide and high.
inline constexpr float twipsPerPixel = 15;
/// How many device pixels stand for each pixel of an unscaled screen, at the least; and so the widest pixel, in twips.
inline constexpr float leastFactor = 0.75F;
inline constexpr float widestPixel = twipsPerPixel / leastFactor;

/// A point in twips, origin at the top left, y downwards.
struct Point {
    float x = 0;
    float y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

/// A rectangle in twips that includes all four of its edges.
struct Rect {
    float left = 0;
    float top = 0;
    float right = -1;
    float bottom = -1;

    /// True also when an edge is not a number.
    bool empty() const { return !(left <= right && top <= bottom); }

    bool contains(Point at) const { return left <= at.x && at.x <= right && top <= at.y && at.y <= bottom; }
    bool contains(const Rect& other) const {
        return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
    }

    /// The smallest rectangle that holds both; an empty one adds nothing.
    Rect joined(const Rect& other) const {
        if (empty() || other.empty()) {
            return empty() ? other : *this;
        }
        return {.left = std::min(left, other.left),
                .top = std::min(top, other.top),
                .right = std::max(right, other.right),
                .bottom = std::max(bottom, other.bottom)};
    }

    Rect intersected(const Rect& other) const {
        return {.left = std::max(left, other.left),
                .top = std::max(top, other.top),
                .right = std::min(right, other.right),
                .bottom = std::min(bottom, other.bottom)};
    }

    Rect grown(float by) const {
        return {.left = left - by, .top = top - by, .right = right + by, .bottom = bottom + by};
    }

    /// A rectangle that holds all of this one that `cover` leaves to see, and of the cover at most an edge.
    Rect without(const Rect& cover) const;

    /// True when less than `gap` twips of space lie between the two; with no gap, when they share a point.
    bool meets(const Rect& other, float gap = 0) const {
        return left <= other.right + gap && other.left <= right + gap && top <= other.bottom + gap &&
               other.top <= bottom + gap;
    }

    friend bool operator==(const Rect&, const Rect&) = default;
};

inline Rect Rect::without(const Rect& cover) const {
    Rect rest = *this;
    if (cover.top <= top && cover.bottom >= bottom) {
        rest.left = cover.left <= left ? std::max(left, cover.right) : left;
        rest.right = cover.right >= right ? std::min(right, cover.left) : right;
    }
    if (cover.left <= left && cover.right >= right) {
        rest.top = cover.top <= top ? std::max(top, cover.bottom) : top;
        rest.bottom = cover.bottom >= bottom ? std::min(bottom, cover.top) : bottom;
    }
    return rest;
}

} // namespace tumble
