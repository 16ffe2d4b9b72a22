#include "platform/PixelScale.h"

#include <algorithm>
#include <cmath>

namespace tumble {

PixelRect PixelRect::intersected(const PixelRect& other) const {
    return {.left = std::max(left, other.left),
            .top = std::max(top, other.top),
            .right = std::min(right, other.right),
            .bottom = std::min(bottom, other.bottom)};
}

std::array<PixelRect, 4> boxSides(const PixelRect& box, int pen) {
    std::array<PixelRect, 4> sides{box, box, box, box};
    sides[0].bottom = std::min(box.bottom, box.top + pen - 1);
    sides[1].top = std::max(box.top, box.bottom - pen + 1);
    sides[2].right = std::min(box.right, box.left + pen - 1);
    sides[3].left = std::max(box.left, box.right - pen + 1);
    return sides;
}

PixelScale::PixelScale(double factor) : factor_(factor >= 1 ? std::min(factor, 16.0) : 1) {}

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
    return static_cast<int>(std::ceil(factor_ - 0.5));
}

PixelRect PixelScale::stroke(Point from, Point to, const PixelRect& item) const {
    const int width = pen();
    const auto start = [&](float twips, int first, int last) {
        return std::max(first, std::min(pixel(twips) - width / 2, last - width + 1));
    };
    const int x1 = start(std::min(from.x, to.x), item.left, item.right);
    const int x2 = start(std::max(from.x, to.x), item.left, item.right);
    const int y1 = start(std::min(from.y, to.y), item.top, item.bottom);
    const int y2 = start(std::max(from.y, to.y), item.top, item.bottom);
    return PixelRect{.left = x1, .top = y1, .right = x2 + width - 1, .bottom = y2 + width - 1}.intersected(item);
}

float PixelScale::twips(double pixel) const {
    // The hair added makes up for the toolkit's division of a whole pixel by a fractional ratio.
    return static_cast<float>(std::floor(pixel * twipsPerPixel / factor_ + 1e-4));
}

} // namespace tumble
