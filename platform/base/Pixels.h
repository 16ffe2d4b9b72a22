#pragma once

#include "platform/base/Geometry.h"

#include <array>
#include <vector>

namespace tumble {

// In device pixels.
using PixelPoint = BasicPoint<int>;
using PixelSize = BasicSize<int>;
using PixelRect = BasicRect<int>;

inline Box toBox(const PixelRect& pixels) {
    const auto [x, y] = pixels.corner();
    return {{static_cast<double>(x), static_cast<double>(y)},
            static_cast<double>(pixels.width()),
            static_cast<double>(pixels.height())};
}

/// The four sides of a box outline drawn inside `box` with a pen so many pixels wide.
std::array<PixelRect, 4> boxSides(const PixelRect& box, int pen);

/// The pixels inside `clip` that a line covers. A level or upright line is one block, moved inwards where it would
/// cross the edge of `clip`. A slanting one is a block for each row; the mirrored line covers the mirrored pixels.
std::vector<PixelRect> rasterizeLine(PixelPoint from, PixelPoint to, int pen, const PixelRect& clip);

} // namespace tumble
