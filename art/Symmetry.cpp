#include "art/Symmetry.h"

namespace tumble::art {

PixelRect upperLeftQuarter(const Canvas& canvas) {
    return {.left = 0, .top = 0, .right = (canvas.size().width - 1) / 2, .bottom = (canvas.size().height - 1) / 2};
}

void mirrorQuarter(Canvas& canvas) {
    const auto [width, height] = canvas.size();
    const PixelRect left{.left = 0, .top = 0, .right = width / 2 - 1, .bottom = (height - 1) / 2};
    const PixelRect upper{.left = 0, .top = 0, .right = width - 1, .bottom = height / 2 - 1};
    canvas.draw(canvas, left, {(width + 1) / 2, 0}, Flip::Horizontal);
    canvas.draw(canvas, upper, {0, (height + 1) / 2}, Flip::Vertical);
}

void rotateUpperHalf(Canvas& canvas, double slope) {
    const PixelSize size = canvas.size();
    const auto fillRotated = [&](const PixelRect& block) {
        const PixelPoint opposite{size.width - 1 - block.right, size.height - 1 - block.bottom};
        canvas.draw(canvas, block.size().at(opposite), block.corner(), Flip::Both);
    };
    for (int y = 0; y < size.height; ++y) {
        const auto isBelow = [&](int x) {
            const int right = 2 * x + 1 - size.width;
            const double below = 2 * y + 1 - size.height - slope * right;
            return below > 0 || (below == 0 && right > 0);
        };
        PixelRect row{.left = 0, .top = y, .right = size.width - 1, .bottom = y};
        while (!row.empty() && !isBelow(row.left)) {
            ++row.left;
        }
        while (!row.empty() && !isBelow(row.right)) {
            --row.right;
        }
        if (row.width() == size.width) {
            row.bottom = size.height - 1;
            fillRotated(row);
            return;
        }
        if (!row.empty()) {
            fillRotated(row);
        }
    }
}

} // namespace tumble::art
