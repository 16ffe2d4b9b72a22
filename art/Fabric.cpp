#include "art/Fabric.h"

#include "art/PathData.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace tumble::art {

namespace {

constexpr double outlineWidth = 0.8;

/// A pattern's motif, and the steps from one to the next. Every other row is shifted by half a step.
struct Repeat {
    PathData motif;
    double stepX;
    double stepY;
};

/// In card units.
constexpr std::array<Repeat, 6> repeats = {{
    {"", 4, 4},                                                  // Plain
    {"M-1 -4 L1 -4 L1 4 L-1 4 Z M3 -4 L5 -4 L5 4 L3 4 Z", 8, 4}, // Stripes
    {"M0 -2.4 L1.9 0 L0 2.4 L-1.9 0 Z", 5, 3.1},                 // Lozenges
    {"O 0 0 1.1", 5, 3},                                         // Dots
    {"M-2.5 0 L0 2 L2.5 0 L2.5 1.8 L0 3.8 L-2.5 1.8 Z", 5, 4},   // Chevrons
    {"M0 -1.6 L0.6 0 L1.2 1.4 L0 1 L-1.2 1.4 L-0.6 0 Z", 7, 3},  // Ermine
}};

/// Fills a shape with a texture of the pattern. The texture is a whole number of pixels wide and high.
void fillPatterned(const Drawing& drawing, const Path& shape, const Fabric& fabric) {
    const auto& [motif, stepX, stepY] = repeats.at(static_cast<std::size_t>(fabric.pattern));
    const Transform& toPixels = drawing.toPixels;
    const auto rounded = [](double pixels) { return std::max(1, static_cast<int>(std::lround(pixels))); };
    const int halfWidth = rounded(std::abs(toPixels.right.x) * stepX / 2);
    const int halfHeight = rounded(toPixels.down.y * stepY);
    const PixelPoint corner{static_cast<int>(std::floor(toPixels.origin.x)),
                            static_cast<int>(std::floor(toPixels.origin.y))};

    const auto texture = drawing.canvas.createSimilar({halfWidth * 2, halfHeight * 2}, fabric.background);
    // A stripe takes a quarter of the texture; its left edge lies on a whole pixel.
    const double left = fabric.pattern == Pattern::Stripes ? halfWidth / 4.0 : toPixels.origin.x - corner.x;
    const Transform toTexture =
        Transform().moved({left, toPixels.origin.y - corner.y}).scaled(halfWidth * 2 / stepX, halfHeight / stepY);
    for (int row = -2; row <= 3; ++row) {
        const double shift = row % 2 == 0 ? 0 : stepX / 2;
        for (int column = -1; column <= 1; ++column) {
            texture->fill(motif.path(), toTexture.moved({column * stepX + shift, row * stepY}), fabric.foreground);
        }
    }
    drawing.canvas.fill(shape, toPixels, *texture, corner);
}

} // namespace

void paintFabric(const Drawing& drawing, const Path& shape, const Fabric& fabric) {
    if (fabric.pattern == Pattern::Plain) {
        drawing.canvas.fill(shape, drawing.toPixels, fabric.background);
    } else {
        fillPatterned(drawing, shape, fabric);
    }
    drawing.canvas.stroke(shape, drawing.toPixels, {black, outlineWidth});
}

} // namespace tumble::art
