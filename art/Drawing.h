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

} // namespace tumble::art
