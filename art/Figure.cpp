#include "art/Figure.h"

#include <algorithm>
#include <cmath>

namespace tumble::art {

namespace {

constexpr double outlineWidth = 0.8;
constexpr double lineWidth = 0.7;

/// A mark of a pattern, and the steps from one to the next; every other row is shifted by half a step.
struct Repeat {
    Outline mark;
    double stepX;
    double stepY;
};

Repeat repeatOf(Weave weave) {
    switch (weave) {
    case Weave::Plain:
        break;
    case Weave::Stripes:
        return {"M-1 -4 L1 -4 L1 4 L-1 4 Z M3 -4 L5 -4 L5 4 L3 4 Z", 8, 4};
    case Weave::Lozenges:
        return {"M0 -2.4 L1.9 0 L0 2.4 L-1.9 0 Z", 5, 3.1};
    case Weave::Dots:
        return {"O 0 0 1.1", 5, 3};
    case Weave::Chevrons:
        return {"M-2.5 0 L0 2 L2.5 0 L2.5 1.8 L0 3.8 L-2.5 1.8 Z", 5, 4};
    case Weave::Ermine:
        return {"M0 -1.6 L0.6 0 L1.2 1.4 L0 1 L-1.2 1.4 L-0.6 0 Z", 7, 3};
    }
    return {"", 4, 4};
}

/// Fills a shape with a fabric whose pattern repeats in whole pixels, laid out from the drawing's origin.
void fillWoven(const Drawing& drawing, const Path& shape, const Fabric& fabric) {
    const auto& [mark, stepX, stepY] = repeatOf(fabric.weave);
    const Transform& toPixels = drawing.toPixels;
    const auto steps = [](double pixels) { return std::max(1, static_cast<int>(std::lround(pixels))); };
    const int halfWidth = steps(std::abs(toPixels.right.x) * stepX / 2);
    const int halfHeight = steps(toPixels.down.y * stepY);
    const PixelPoint corner{static_cast<int>(std::floor(toPixels.origin.x)),
                            static_cast<int>(std::floor(toPixels.origin.y))};

    const auto texture = drawing.canvas.createSimilar({halfWidth * 2, halfHeight * 2}, fabric.ground);
    // A stripe takes a quarter of the texture; its left edge lies on a whole pixel.
    const double left = fabric.weave == Weave::Stripes ? halfWidth / 4.0 : toPixels.origin.x - corner.x;
    const Drawing weaver =
        Drawing{*texture}.moved({left, toPixels.origin.y - corner.y}).scaled(halfWidth * 2 / stepX, halfHeight / stepY);
    const Path path = outline(mark);
    for (int row = -2; row <= 3; ++row) {
        const double shift = row % 2 == 0 ? 0 : stepX / 2;
        for (int column = -1; column <= 1; ++column) {
            const Drawing place = weaver.moved({column * stepX + shift, row * stepY});
            place.canvas.fill(path, place.toPixels, fabric.thread);
        }
    }
    drawing.canvas.fill(shape, toPixels, *texture, corner);
}

} // namespace

void paintFabric(const Drawing& drawing, const Path& shape, const Fabric& fabric) {
    if (fabric.weave == Weave::Plain) {
        drawing.canvas.fill(shape, drawing.toPixels, fabric.ground);
    } else {
        fillWoven(drawing, shape, fabric);
    }
    drawing.canvas.stroke(shape, drawing.toPixels, {black, outlineWidth});
}

void paintPieces(const Drawing& drawing, std::span<const Piece> pieces, const Wardrobe& wardrobe) {
    for (const Piece& piece : pieces) {
        const Fabric& fabric = wardrobe.at(static_cast<std::size_t>(piece.cloth));
        const Path path = outline(piece.outline);
        const Pen pen{fabric.ground, lineWidth};
        switch (piece.form) {
        case Form::Twins:
            paintFabric(drawing, mirrored(path), fabric);
            [[fallthrough]];
        case Form::Single:
            paintFabric(drawing, path, fabric);
            break;
        case Form::Whole:
            paintFabric(drawing, completed(path), fabric);
            break;
        case Form::Lines:
            drawing.canvas.stroke(mirrored(path), drawing.toPixels, pen);
            [[fallthrough]];
        case Form::Line:
            drawing.canvas.stroke(path, drawing.toPixels, pen);
            break;
        }
    }
}

} // namespace tumble::art
