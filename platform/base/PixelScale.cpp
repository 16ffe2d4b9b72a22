#include "platform/base/PixelScale.h"

#include <algorithm>
#include <cmath>

namespace tumble {

PixelScale::PixelScale(double factor)
    : factor_(std::isnan(factor)
                  ? 1
                  : std::clamp(factor, static_cast<double>(leastFactor), static_cast<double>(largestFactor))) {}

int PixelScale::pixel(float twips) const {
    constexpr double outermost = 1 << 20;
    // Multiplied before it is divided, so that whole pixels come out whole.
    const double place = std::clamp(static_cast<double>(twips) * factor_ / twipsPerPixel, -outermost, outermost);
    const int towardsZero = std::isnan(place) ? 0 : static_cast<int>(place);
    return place < towardsZero ? towardsZero - 1 : towardsZero;
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

PixelRect PixelScale::stroke(Point from, Point to, const PixelRect& item) const {
    return tumble::stroke({pixel(from.x), pixel(from.y)}, {pixel(to.x), pixel(to.y)}, pen(), item);
}

std::vector<PixelRect> PixelScale::slant(Point from, Point to, const PixelRect& item) const {
    return tumble::slant({pixel(from.x), pixel(from.y)}, {pixel(to.x), pixel(to.y)}, pen(), item);
}

float PixelScale::twips(double pixel) const {
    // The hair added makes up for the toolkit's division of a whole pixel by a fractional ratio.
    return static_cast<float>(std::floor(pixel * twipsPerPixel / factor_ + 1e-4));
}

} // namespace tumble
