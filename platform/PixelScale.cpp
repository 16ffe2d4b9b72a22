#include "platform/PixelScale.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tumble {

PixelRect PixelRect::intersected(const PixelRect& other) const {
    return {.left = std::max(left, other.left),
            .top = std::max(top, other.top),
            .right = std::min(right, other.right),
            .bottom = std::min(bottom, other.bottom)};
}

PixelRect PixelRect::without(const PixelRect& cover) const {
    PixelRect rest = *this;
    if (cover.top <= top && cover.bottom >= bottom) {
        rest.left = cover.left <= left ? std::max(left, cover.right + 1) : left;
        rest.right = cover.right >= right ? std::min(right, cover.left - 1) : right;
    }
    if (cover.left <= left && cover.right >= right) {
        rest.top = cover.top <= top ? std::max(top, cover.bottom + 1) : top;
        rest.bottom = cover.bottom >= bottom ? std::min(bottom, cover.top - 1) : bottom;
    }
    return rest;
}

std::array<PixelRect, 4> boxSides(const PixelRect& box, int pen) {
    std::array<PixelRect, 4> sides{box, box, box, box};
    sides[0].bottom = std::min(box.bottom, box.top + pen - 1);
    sides[1].top = std::max(box.top, box.bottom - pen + 1);
    sides[2].right = std::min(box.right, box.left + pen - 1);
    sides[3].left = std::max(box.left, box.right - pen + 1);
    return sides;
}

PixelScale::PixelScale(double factor)
    : factor_(std::isnan(factor) ? 1 : std::clamp(factor, static_cast<double>(leastFactor), 16.0)) {}

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

// Reckoned from the upper end, and outwards from there, so that nothing depends on the direction of drawing.
std::vector<PixelRect> PixelScale::slant(Point from, Point to, const PixelRect& item) const {
    if (from.y > to.y) {
        std::swap(from, to);
    }
    const int x = pixel(from.x);
    const int across = pixel(to.x) - x;
    const int top = pixel(from.y);
    const int bottom = pixel(to.y);
    if (top == bottom) {
        return {stroke(from, to, item)};
    }
    const double slope = static_cast<double>(std::abs(across)) / (bottom - top);
    const int width = static_cast<int>(std::lround(pen() * std::hypot(1, slope)));
    const PixelRect ends{.left = x + std::min(across, 0) - pen() / 2,
                         .top = top,
                         .right = x + std::max(across, 0) + pen() / 2,
                         .bottom = bottom};
    const PixelRect room = ends.intersected(item);
    std::vector<PixelRect> blocks;
    for (int row = room.top; row <= room.bottom; ++row) {
        const int near = static_cast<int>(std::lround(slope * (row - top))) - width / 2;
        const int left = across < 0 ? x - near - width + 1 : x + near;
        blocks.push_back(
            PixelRect{.left = left, .top = row, .right = left + width - 1, .bottom = row}.intersected(room));
    }
    return blocks;
}

float PixelScale::twips(double pixel) const {
    // The hair added makes up for the toolkit's division of a whole pixel by a fractional ratio.
    return static_cast<float>(std::floor(pixel * twipsPerPixel / factor_ + 1e-4));
}

} // namespace tumble
