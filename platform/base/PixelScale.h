#pragma once

#include "platform/base/Pixels.h"

namespace tumble {

/// The width and height of a pixel of an unscaled screen, in twips.
inline constexpr float twipsPerPixel = 15;
/// The limits of a scale's factor, and so the widest device pixel, in twips.
inline constexpr float leastFactor = 0.75F;
inline constexpr float largestFactor = 16;
inline constexpr float widestPixel = twipsPerPixel / leastFactor;

/// Converts twips to device pixels and back.
class PixelScale {
public:
    /// `factor` is the number of device pixels for each pixel of an unscaled screen, clamped to `leastFactor` and
    /// `largestFactor`; NaN counts as 1.
    explicit PixelScale(double factor);

    double factor() const { return factor_; }
    /// The pixel that contains a coordinate, clamped to 2^20 either way; 0 for NaN.
    int pixel(float twips) const;
    PixelPoint pixel(Point at) const { return {pixel(at.x), pixel(at.y)}; }
    /// The pixels that a rectangle covers; none when it is empty.
    PixelRect pixels(const Rect& rect) const;
    /// The width of a pen: the whole number nearest to one unscaled pixel, ties down.
    int pen() const;
    /// The whole twip in which a pixel begins.
    float twips(double pixel) const;

private:
    double factor_;
};

} // namespace tumble
