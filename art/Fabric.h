#pragma once

#include "art/Drawing.h"
#include "art/Palette.h"

namespace tumble::art {

/// Every pattern is symmetrical about the axis x = 0.
enum class Pattern { Plain, Stripes, Lozenges, Dots, Chevrons, Ermine };

struct Fabric {
    Colour background = white;
    Pattern pattern = Pattern::Plain;
    Colour foreground = black;
};

/// Fills a shape with a fabric and strokes its outline in black. The pattern starts from the drawing's origin.
void paintFabric(const Drawing& drawing, const Path& shape, const Fabric& fabric);

} // namespace tumble::art
