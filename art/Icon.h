#pragma once

#include "platform/base/Colour.h"
#include "platform/base/Path.h"

#include <vector>

namespace tumble {

/// The width, and height, of the icon in its own coordinates.
inline constexpr int iconWidth = 32;

struct Shape {
    Path outline;
    Colour colour;
};

/// What the icon consists of when it is large.
std::vector<Shape> iconShapes();

} // namespace tumble
