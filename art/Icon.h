#pragma once

#include "platform/base/Colour.h"
#include "platform/base/Path.h"
#include "platform/paint/Canvas.h"

#include <vector>

namespace tumble::art {

/// The width, and height, of the icon in its own coordinates.
inline constexpr int iconWidth = 32;

struct Shape {
    Path path;
    Colour colour;
};

/// The shapes of a large icon, in its own coordinates.
std::vector<Shape> iconShapes();

/// Draws the icon over what the canvas shows, with a margin of so many pixels.
void drawIcon(Canvas& canvas, int margin = 0);

} // namespace tumble::art
