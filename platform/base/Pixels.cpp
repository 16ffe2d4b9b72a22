#include "platform/base/Pixels.h"

#include <cmath>
#include <cstdlib>
#include <utility>

namespace tumble {

std::array<PixelRect, 4> boxSides(const PixelRect& box, int pen) {
    std::array<PixelRect, 4> sides{box, box, box, box};
    sides[0].bottom = std::min(box.bottom, box.top + pen - 1);
    sides[1].top = std::max(box.top, box.bottom - pen + 1);
    sides[2].right = std::min(box.right, box.left + pen - 1);
    sides[3].left = std::max(box.left, box.right - pen + 1);
    return sides;
}

PixelRect stroke(PixelPoint from, PixelPoint to, int pen, const PixelRect& item) {
    const auto start = [pen](int place, int first, int last) {
        return std::max(first, std::min(place - pen / 2, last - pen + 1));
    };
    const int x1 = start(std::min(from.x, to.x), item.left, item.right);
    const int x2 = start(std::max(from.x, to.x), item.left, item.right);
    const int y1 = start(std::min(from.y, to.y), item.top, item.bottom);
    const int y2 = start(std::max(from.y, to.y), item.top, item.bottom);
    return PixelRect{.left = x1, .top = y1, .right = x2 + pen - 1, .bottom = y2 + pen - 1}.intersected(item);
}

// Reckoned from the upper end, and outwards from there, so that nothing depends on the direction of drawing.
std::vector<PixelRect> slant(PixelPoint from, PixelPoint to, int pen, const PixelRect& item) {
    if (from.y > to.y) {
        std::swap(from, to);
    }
    if (from.y == to.y) {
        return {stroke(from, to, pen, item)};
    }
    const int across = to.x - from.x;
    const double slope = static_cast<double>(std::abs(across)) / (to.y - from.y);
    const int width = static_cast<int>(std::lround(pen * std::hypot(1, slope)));
    const PixelRect ends{.left = from.x + std::min(across, 0) - pen / 2,
                         .top = from.y,
                         .right = from.x + std::max(across, 0) + pen / 2,
                         .bottom = to.y};
    const PixelRect room = ends.intersected(item);
    std::vector<PixelRect> blocks;
    for (int row = room.top; row <= room.bottom; ++row) {
        const int near = static_cast<int>(std::lround(slope * (row - from.y))) - width / 2;
        const int left = across < 0 ? from.x - near - width + 1 : from.x + near;
        blocks.push_back(
            PixelRect{.left = left, .top = row, .right = left + width - 1, .bottom = row}.intersected(room));
    }
    return blocks;
}

} // namespace tumble
