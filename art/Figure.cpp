#include "art/Figure.h"

#include "art/Outline.h"

#include <algorithm>
#include <cmath>

namespace tumble {

namespace {

constexpr double outlineWidth = 0.8;
constexpr double lineWidth = 0.7;

/// A mark of a pattern, and the steps from one to the next; every other row is shifted by half a step.
struct Repeat {
    const char* mark;
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

/// The fabric as a texture that repeats in whole pixels, laid out from the painter's origin.
QBrush woven(const QPainter& painter, const Fabric& fabric) {
    const Repeat repeat = repeatOf(fabric.weave);
    const QTransform& toPixels = painter.transform();
    const auto steps = [](double pixels) { return std::max(1, static_cast<int>(std::lround(pixels))); };
    const int halfX = steps(std::abs(toPixels.m11()) * repeat.stepX / 2);
    const int stepY = steps(toPixels.m22() * repeat.stepY);
    const QPoint corner(static_cast<int>(std::floor(toPixels.dx())), static_cast<int>(std::floor(toPixels.dy())));

    QImage texture(halfX * 2, stepY * 2, QImage::Format_RGB32);
    texture.fill(fabric.ground);
    QPainter weaver(&texture);
    weaver.setRenderHint(QPainter::Antialiasing);
    // A stripe takes a quarter of the texture; its left edge lies on a whole pixel.
    const double left = fabric.weave == Weave::Stripes ? halfX / 4.0 : toPixels.dx() - corner.x();
    weaver.translate(left, toPixels.dy() - corner.y());
    weaver.scale(halfX * 2 / repeat.stepX, stepY / repeat.stepY);
    const QPainterPath mark = outline(repeat.mark);
    for (int row = -2; row <= 3; ++row) {
        const double shift = row % 2 == 0 ? 0 : repeat.stepX / 2;
        for (int column = -1; column <= 1; ++column) {
            weaver.fillPath(mark.translated(column * repeat.stepX + shift, row * repeat.stepY), QColor(fabric.thread));
        }
    }
    weaver.end();
    QBrush brush(texture);
    brush.setTransform(QTransform::fromTranslate(corner.x(), corner.y()) * toPixels.inverted());
    return brush;
}

} // namespace

void paintFabric(QPainter& painter, const QPainterPath& shape, const Fabric& fabric) {
    const bool isPlain = fabric.weave == Weave::Plain;
    painter.fillPath(shape, isPlain ? QBrush(QColor(fabric.ground)) : woven(painter, fabric));
    painter.strokePath(shape, QPen(QColor(black), outlineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void paintPieces(QPainter& painter, std::span<const Piece> pieces, const Wardrobe& wardrobe) {
    for (const Piece& piece : pieces) {
        const Fabric& fabric = wardrobe.at(static_cast<std::size_t>(piece.cloth));
        const QPainterPath path = outline(piece.outline);
        const QPen pen(QColor(fabric.ground), lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        switch (piece.form) {
        case Form::Twins:
            paintFabric(painter, mirrored(path), fabric);
            [[fallthrough]];
        case Form::Single:
            paintFabric(painter, path, fabric);
            break;
        case Form::Whole:
            paintFabric(painter, completed(path), fabric);
            break;
        case Form::Lines:
            painter.strokePath(mirrored(path), pen);
            [[fallthrough]];
        case Form::Line:
            painter.strokePath(path, pen);
            break;
        }
    }
}

} // namespace tumble
