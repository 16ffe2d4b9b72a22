#include "art/Drawing.h"

#include <algorithm>
#include <cmath>

namespace tumble::art {

PixelRect snapped(const Drawing& drawing, const Box& box) {
    const auto rounded = [](double pixels) { return static_cast<int>(std::lround(pixels)); };
    const Box exact = drawing.toPixels(box);
    const PixelSize size{std::max(1, rounded(exact.width)), std::max(1, rounded(exact.height))};
    return size.at({rounded(exact.corner.x), rounded(exact.corner.y)});
}

} // namespace tumble::art
