#pragma once

#include "platform/Geometry.h"

#include <array>
#include <vector>

namespace tumble {

/// A block of device pixels, all four edges included.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = -1;
    int bottom = -1;

    int width() const { return right - left + 1; }
    int height() const { return bottom - top + 1; }
    bool empty() const { return right < left || bottom < top; }
    PixelRect intersected(const PixelRect& other) const;
    /// The smallest block that holds all of this one that `cover` leaves to see.
    PixelRect without(const PixelRect& cover) const;

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// The four sides of a box outline drawn inside `box` with a pen so many pixels wide.
std::array<PixelRect, 4> boxSides(const PixelRect& box, int pen);

/// How twips become device pixels and back: the one place where the two meet.
class PixelScale {
public:
    /// Device pixels for each pixel of an unscaled screen (15 twips); values out of `leastFactor` to 16 are brought
    /// inside, what is not a number counts as 1.
    explicit PixelScale(double factor);

    double factor() const { return factor_; }
    /// The pixel in which a place lies; far beyond any screen the outermost one that is told apart.
    int pixel(float twips) const;
    /// The pixels that a rectangle covers; none when it is empty.
    PixelRect pixels(const Rect& rect) const;
    /// The width of a pen: the whole number nearest to one unscaled pixel, ties down.
    int pen() const;
    /// The pixels that a level or upright line covers inside `item`, its pen moved in where it would reach out.
    PixelRect stroke(Point from, Point to, const PixelRect& item) const;
    /// The pixels that a slanting line covers inside `item`, a block for each row; the mirrored line covers the
    /// mirrored pixels.
    std::vector<PixelRect> slant(Point from, Point to, const PixelRect& item) const;
    /// The whole twip in which a pixel begins.
    float twips(double pixel) const;

private:
    double factor_;
};

} // namespace tumble
