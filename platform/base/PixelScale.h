#pragma once

#include "platform/base/Geometry.h"
#include "platform/base/Pixels.h"

#include <vector>

namespace tumble {

/// How twips become device pixels and back: the one place where the two meet.
class PixelScale {
public:
    /// Device pixels for each pixel of an unscaled screen (15 twips); values out of `leastFactor` to `largestFactor`
    /// are brought inside, what is not a number counts as 1.
    explicit PixelScale(double factor);

    double factor() const { return factor_; }
    /// The pixel in which a place lies; far beyond any screen the outermost one that is told apart.
    int pixel(float twips) const;
    /// The pixels that a rectangle covers; none when it is empty.
    PixelRect pixels(const Rect& rect) const;
    /// The width of a pen: the whole number nearest to one unscaled pixel, ties down.
    int pen() const;
    /// The pixels that a level or upright line covers inside `item`.
    PixelRect stroke(Point from, Point to, const PixelRect& item) const;
    /// Those of a slanting line.
    std::vector<PixelRect> slant(Point from, Point to, const PixelRect& item) const;
    /// The whole twip in which a pixel begins.
    float twips(double pixel) const;

private:
    double factor_;
};

} // namespace tumble
