#pragma once

#include "platform/paint/Canvas.h"

namespace tumble::art {

/// A canvas and the transform from a drawing's coordinates to its pixels.
struct Drawing {
    Canvas& canvas;
    Transform toPixels{};

    Drawing moved(Vec2 by) const { return {canvas, toPixels.moved(by)}; }
    Drawing scaled(double across, double along) const { return {canvas, toPixels.scaled(across, along)}; }
};

/// The size for which the pictures are designed: one unit of their coordinates is one pixel there.
inline constexpr PixelSize cardSize{81, 126};
inline constexpr Box wholeCard{{}, cardSize.width, cardSize.height};

/// The block of pixels nearest to a box in the drawing's coordinates; at least one pixel each way.
PixelRect snapped(const Drawing& drawing, const Box& box);

} // namespace tumble::art
