#pragma once

#include <algorithm>
#include <type_traits>

namespace tumble {

// The origin is at the top left, x runs to the right, y downwards.

/// A point or a vector.
template<class Length>
struct BasicPoint {
    Length x = 0;
    Length y = 0;

    constexpr BasicPoint operator+(BasicPoint other) const { return {x + other.x, y + other.y}; }
    constexpr BasicPoint operator-(BasicPoint other) const { return {x - other.x, y - other.y}; }
    friend constexpr bool operator==(const BasicPoint&, const BasicPoint&) = default;
};

template<class Length>
struct BasicSize;

/// A rectangle that includes all four of its edges.
template<class Length>
struct BasicRect {
    Length left = 0;
    Length top = 0;
    Length right = -1;
    Length bottom = -1;

    Length width() const { return right - left + 1; }
    Length height() const { return bottom - top + 1; }
    BasicSize<Length> size() const { return {width(), height()}; }
    BasicPoint<Length> corner() const { return {left, top}; }
    /// True also when an edge is not a number.
    bool empty() const { return !(left <= right && top <= bottom); }

    bool contains(BasicPoint<Length> at) const {
        return left <= at.x && at.x <= right && top <= at.y && at.y <= bottom;
    }
    bool contains(const BasicRect& other) const {
        return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
    }
    /// True when less than `gap` lies between the two; with no gap, when they share a point.
    bool intersects(const BasicRect& other, Length gap = 0) const {
        return left <= other.right + gap && other.left <= right + gap && top <= other.bottom + gap &&
               other.top <= bottom + gap;
    }

    BasicRect intersected(const BasicRect& other) const {
        return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                std::min(bottom, other.bottom)};
    }
    /// The bounding box of both; an empty rectangle adds nothing.
    BasicRect united(const BasicRect& other) const {
        if (empty() || other.empty()) {
            return empty() ? other : *this;
        }
        return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
                std::max(bottom, other.bottom)};
    }
    /// The bounding box of what remains when `cover` is subtracted. Whole numbers continue beside an edge of the cover,
    /// real ones on it.
    BasicRect subtracted(const BasicRect& cover) const {
        constexpr Length beside = std::is_integral_v<Length> ? 1 : 0;
        BasicRect rest = *this;
        if (cover.top <= top && cover.bottom >= bottom) {
            rest.left = cover.left <= left ? std::max(left, cover.right + beside) : left;
            rest.right = cover.right >= right ? std::min(right, cover.left - beside) : right;
        }
        if (cover.left <= left && cover.right >= right) {
            rest.top = cover.top <= top ? std::max(top, cover.bottom + beside) : top;
            rest.bottom = cover.bottom >= bottom ? std::min(bottom, cover.top - beside) : bottom;
        }
        return rest;
    }

    /// Each vertical edge moved inwards by `across`, each horizontal one by `down`.
    BasicRect inset(Length across, Length down) const {
        return {left + across, top + down, right - across, bottom - down};
    }
    BasicRect expanded(Length by) const { return inset(-by, -by); }

    friend bool operator==(const BasicRect&, const BasicRect&) = default;
};

template<class Length>
struct BasicSize {
    Length width = 0;
    Length height = 0;

    bool empty() const { return width < 1 || height < 1; }
    /// The rectangle of that size whose upper left corner is `corner`.
    BasicRect<Length> at(BasicPoint<Length> corner) const {
        return {corner.x, corner.y, corner.x + width - 1, corner.y + height - 1};
    }
    friend bool operator==(const BasicSize&, const BasicSize&) = default;
};

// In twips.
using Point = BasicPoint<float>;
using Rect = BasicRect<float>;

/// In the coordinates of a drawing, or in pixels and parts of them.
using Vec2 = BasicPoint<double>;

/// A box in the same coordinates, by its upper left corner and its lengths.
struct Box {
    Vec2 corner;
    double width = 0;
    double height = 0;

    constexpr Vec2 centre() const { return {corner.x + width / 2, corner.y + height / 2}; }
};

} // namespace tumble
