#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

namespace tumble {

/// 24 bits, 0xBBGGRR: red in the low byte.
using Colour = std::int32_t;

/// The colour of the window around a picture box, whatever the player's theme; the desktop knows it when it paints.
inline constexpr Colour windowColour = -1;

constexpr Colour rgb(int red, int green, int blue) {
    return blue << 16 | green << 8 | red;
}
/// The amounts of red, green and blue, from 0 to 255.
constexpr std::array<int, 3> channels(Colour colour) {
    return {colour & 255, colour >> 8 & 255, colour >> 16 & 255};
}

/// How many twips one pixel of an unscaled screen is wide and high.
inline constexpr float twipsPerPixel = 15;
/// How many device pixels stand for each pixel of an unscaled screen, at the least and at the most; and so the widest
/// pixel, in twips.
inline constexpr float leastFactor = 0.75F;
inline constexpr float largestFactor = 16;
inline constexpr float widestPixel = twipsPerPixel / leastFactor;

/// A point in twips, origin at the top left, y downwards.
struct Point {
    float x = 0;
    float y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

/// A rectangle that holds all of `whole` that `cover` leaves to see; the cover's next neighbours are `beyond` its
/// edges.
template<class Rectangle, class Length>
Rectangle uncovered(const Rectangle& whole, const Rectangle& cover, Length beyond) {
    Rectangle rest = whole;
    if (cover.top <= whole.top && cover.bottom >= whole.bottom) {
        rest.left = cover.left <= whole.left ? std::max(whole.left, cover.right + beyond) : whole.left;
        rest.right = cover.right >= whole.right ? std::min(whole.right, cover.left - beyond) : whole.right;
    }
    if (cover.left <= whole.left && cover.right >= whole.right) {
        rest.top = cover.top <= whole.top ? std::max(whole.top, cover.bottom + beyond) : whole.top;
        rest.bottom = cover.bottom >= whole.bottom ? std::min(whole.bottom, cover.top - beyond) : whole.bottom;
    }
    return rest;
}

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
    Rect united(const Rect& other) const {
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

    Rect expanded(float by) const {
        return {.left = left - by, .top = top - by, .right = right + by, .bottom = bottom + by};
    }

    /// A rectangle that holds all of this one that `cover` leaves to see, and of the cover at most an edge.
    Rect without(const Rect& cover) const { return uncovered(*this, cover, 0.0F); }

    /// True when less than `gap` twips of space lie between the two; with no gap, when they share a point.
    bool intersects(const Rect& other, float gap = 0) const {
        return left <= other.right + gap && other.left <= right + gap && top <= other.bottom + gap &&
               other.top <= bottom + gap;
    }

    friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace tumble
