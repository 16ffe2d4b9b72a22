#include "art/Marks.h"

#include <string_view>

namespace tumble {

namespace {

// The index lies in the ten columns of pixels that a spread leaves to see, clear of the border and of the tenth.
constexpr std::string_view indexGlyphs = "A234567890JQK";
constexpr QRectF indexRankBox(2, 4, 8, 13);
constexpr QRectF indexSuitBox(2, 20, 8, 10);

/// The width in pixels below which a suit's symbol is drawn sturdy.
constexpr double sturdyBelow = 12;

} // namespace

void turnCard(QPainter& painter) {
    painter.translate(cardWidth, cardHeight);
    painter.scale(-1, -1);
}

QRectF snapped(const QPainter& painter, const QRectF& box) {
    const QTransform& toPixels = painter.transform();
    return toPixels.inverted().mapRect(QRectF(toPixels.mapRect(box).toRect()));
}

void paintGlyph(QPainter& painter, char character, const QRectF& box, QRgb colour) {
    const QRectF target = snapped(painter, box);
    painter.save();
    painter.setClipRect(target);
    painter.translate(target.topLeft());
    painter.scale(target.width() / glyphBox.width(), target.height() / glyphBox.height());
    painter.strokePath(glyph(character), QPen(QColor(colour), glyphStem, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.restore();
}

void paintSuit(QPainter& painter, Suit suit, const QRectF& box) {
    const QRectF target = snapped(painter, box);
    const bool tiny = painter.transform().mapRect(target).width() < sturdyBelow;
    painter.fillPath(suitSymbol(suit, target, tiny ? Weight::Sturdy : Weight::Regular), QColor(suitColour(suit)));
}

void paintIndex(QPainter& painter, int rank, Suit suit) {
    for (int corner = 0; corner < 2; ++corner) {
        paintGlyph(painter, indexGlyphs.at(static_cast<std::size_t>(rank) - 1), indexRankBox, suitColour(suit));
        paintSuit(painter, suit, indexSuitBox);
        turnCard(painter);
    }
}

} // namespace tumble
