#include "art/Figure.h"

#include "art/Outline.h"

#include <algorithm>
#include <cmath>

namespace tumble {

namespace {

constexpr double outlineWidth = 0.8;
constexpr double lineWidth = 0.7;

/// A mark of a pattern, and the steps from one to the next; rows are in turn shifted by half a step.
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
        return {"M-1 0 L1 0 L1 4 L-1 4 Z M3 0 L5 0 L5 4 L3 4 Z", 8, 4};
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

void paintWeave(QPainter& painter, const QPainterPath& shape, const Fabric& fabric) {
    const Repeat repeat = repeatOf(fabric.weave);
    const QPainterPath mark = outline(repeat.mark);
    const QRectF bounds = shape.boundingRect();
    const int lastRow = static_cast<int>(std::ceil(bounds.bottom() / repeat.stepY));
    const int lastColumn = static_cast<int>(std::ceil(std::max(-bounds.left(), bounds.right()) / repeat.stepX));
    painter.save();
    painter.setClipPath(shape, Qt::IntersectClip);
    for (int row = static_cast<int>(std::floor(bounds.top() / repeat.stepY)) - 1; row <= lastRow; ++row) {
        const double shift = row % 2 == 0 ? 0 : repeat.stepX / 2;
        for (int column = -lastColumn - 1; column <= lastColumn; ++column) {
            painter.fillPath(mark.translated(column * repeat.stepX + shift, row * repeat.stepY), QColor(fabric.thread));
        }
    }
    painter.restore();
}

} // namespace

void paintFabric(QPainter& painter, const QPainterPath& shape, const Fabric& fabric) {
    painter.fillPath(shape, QColor(fabric.ground));
    if (fabric.weave != Weave::Plain) {
        paintWeave(painter, shape, fabric);
    }
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
