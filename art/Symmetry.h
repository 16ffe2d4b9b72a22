#pragma once

#include "platform/paint/Canvas.h"

namespace tumble::art {

/// The upper left quarter of a canvas, with the middle column or row where there is one.
PixelRect upperLeftQuarter(const Canvas& canvas);

/// Mirrors the upper left quarter into the other three. No flip or half turn changes the image then.
void mirrorQuarter(Canvas& canvas);

/// Replaces the lower half by the upper one, rotated by 180 degrees. The line between the halves passes through the
/// centre and falls by `slope` pixels for each pixel to the right; the slope is not negative.
void rotateUpperHalf(Canvas& canvas, double slope);

} // namespace tumble::art
