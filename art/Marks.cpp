#include "art/Marks.h"

#include "art/Glyphs.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace tumble {

namespace {

// The index lies in the ten columns of pixels that a spread leaves to see, clear of the border and of the tenth.
constexpr std::string_view indexGlyphs = "A234567890JQK";
constexpr QRectF indexRankBox(2, 4, 8, 13);
constexpr QRectF indexSuitBox(2, 20, 8, 10);
constexpr int leastLeft = 2;

/// The width in pixels below which a suit's symbol is a small one.
constexpr int smallBelow = 14;

/// A box of the index in pixels: at no size does it touch the border of the card.
QRect indexBox(const QPainter& painter, const QRectF& box) {
    QRect pixels = fitted(painter, box);
    pixels.moveLeft(std::max(leastLeft, pixels.left()));
    return pixels;
}

} // namespace

QRect fitted(const QPainter& painter, const QRectF& box) {
    const QRectF exact = painter.transform().mapRect(box);
    const QSize size = QSizeF(exact.size()).toSize().expandedTo({1, 1});
    return {QPoint(qRound(exact.left()), qRound(exact.top())), size};
}

void paintGlyph(QPainter& painter, char character, const QRect& pixels, QRgb colour) {
    const Glyph drawn = glyph(character, pixels.size());
    painter.save();
    painter.resetTransform();
    painter.setClipRect(pixels);
    painter.translate(pixels.topLeft());
    painter.strokePath(drawn.line, QPen(QColor(colour), drawn.pen, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.restore();
}

void paintSuit(QPainter& painter, Suit suit, const QRect& pixels) {
    const bool isSmall = pixels.width() < smallBelow;
    const QTransform transform = painter.transform();
    painter.resetTransform();
    painter.fillPath(isSmall ? smallSuitSymbol(suit, pixels) : suitSymbol(suit, pixels), QColor(suitColour(suit)));
    painter.setTransform(transform);
}

void paintIndex(QPainter& painter, int rank, Suit suit) {
    const char character = indexGlyphs.at(static_cast<std::size_t>(rank) - 1);
    paintGlyph(painter, character, indexBox(painter, indexRankBox), suitColour(suit));
    QRect suitPixels = indexBox(painter, indexSuitBox);
    suitPixels.setHeight(std::max(suitPixels.height(), suitPixels.width() + 2));
    paintSuit(painter, suit, suitPixels);
}

void repeatUpsideDown(QImage& image, double fall) {
    const int width = image.width();
    const int height = image.height();
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const auto* opposite = reinterpret_cast<const QRgb*>(image.constScanLine(height - 1 - y));
        for (int x = 0; x < width; ++x) {
            const int right = 2 * x + 1 - width;
            const double below = 2 * y + 1 - height - fall * right;
            if (below > 0 || (below == 0 && right > 0)) {
                line[x] = opposite[width - 1 - x];
            }
        }
    }
}

} // namespace tumble
