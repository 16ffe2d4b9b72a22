#include "platform/base/Pixels.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace tumble {

namespace {

PixelRect straightLine(PixelPoint from, PixelPoint to, int pen, const PixelRect& clip) {
    const auto start = [pen](int middle, int first, int last) {
        return std::max(first, std::min(middle - pen / 2, last - pen + 1));
    };
    const PixelRect block{.left = start(std::min(from.x, to.x), clip.left, clip.right),
                          .top = start(std::min(from.y, to.y), clip.top, clip.bottom),
                          .right = start(std::max(from.x, to.x), clip.left, clip.right) + pen - 1,
                          .bottom = start(std::max(from.y, to.y), clip.top, clip.bottom) + pen - 1};
    return block.intersected(clip);
}

} // namespace

std::array<PixelRect, 4> boxSides(const PixelRect& box, int pen) {
    std::array<PixelRect, 4> sides{box, box, box, box};
    sides[0].bottom = std::min(box.bottom, box.top + pen - 1);
    sides[1].top = std::max(box.top, box.bottom - pen + 1);
    sides[2].right = std::min(box.right, box.left + pen - 1);
    sides[3].left = std::max(box.left, box.right - pen + 1);
    return sides;
}

// A slanting line is computed from its upper end, so that nothing depends on the direction of drawing.
std::vector<PixelRect> rasterizeLine(PixelPoint from, PixelPoint to, int pen, const PixelRect& clip) {
    if (from.x == to.x || from.y == to.y) {
        return {straightLine(from, to, pen, clip)};
    }
    if (from.y > to.y) {
        std::swap(from, to);
    }
    const double slope = static_cast<double>(std::abs(to.x - from.x)) / (to.y - from.y);
    const int width = static_cast<int>(std::lround(pen * std::hypot(1, slope)));
    const PixelRect ends{std::min(from.x, to.x) - pen / 2, from.y, std::max(from.x, to.x) + pen / 2, to.y};
    const PixelRect visible = ends.intersected(clip);
    std::vector<PixelRect> blocks;
    for (int row = visible.top; row <= visible.bottom; ++row) {
        const int distance = static_cast<int>(std::lround(slope * (row - from.y))) - width / 2;
        const int left = to.x < from.x ? from.x - distance - width + 1 : from.x + distance;
        blocks.push_back(PixelSize{width, 1}.at({left, row}).intersected(visible));
    }
    return blocks;
}

} // namespace tumble
