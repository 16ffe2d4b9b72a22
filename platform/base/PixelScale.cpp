#include "platform/base/PixelScale.h"

#include <algorithm>
#include <cmath>

namespace tumble {

PixelScale::PixelScale(double factor)
    : factor_(std::isnan(factor)
                  ? 1
                  : std::clamp(factor, static_cast<double>(leastFactor), static_cast<double>(largestFactor))) {}

int PixelScale::pixel(float twips) const {
    constexpr double limit = 1 << 20;
    // Multiplied before it is divided, so that whole pixels come out whole.
    const double pixel = std::clamp(static_cast<double>(twips) * factor_ / twipsPerPixel, -limit, limit);
    return std::isnan(pixel) ? 0 : static_cast<int>(std::floor(pixel));
}

PixelRect PixelScale::pixels(const Rect& rect) const {
    if (rect.empty()) {
        return {};
    }
    return {.left = pixel(rect.left), .top = pixel(rect.top), .right = pixel(rect.right), .bottom = pixel(rect.bottom)};
}

int PixelScale::pen() const {
    return std::max(1, static_cast<int>(std::ceil(factor_ - 0.5)));
}

float PixelScale::twips(double pixel) const {
    // The small term makes up for the toolkit's division of a whole pixel by a fractional ratio.
    return static_cast<float>(std::floor(pixel * twipsPerPixel / factor_ + 1e-4));
}

} // namespace tumble
