#include "art/Symbols.h"

#include "art/Outline.h"
#include "art/TinySuits.h"

#include <QTransform>

#include <string_view>

namespace tumble {

namespace {

/// A shape from -10 to 10 either way, stretched into a box.
QPainterPath stretched(const QPainterPath& shape, const QRectF& box) {
    return QTransform::fromTranslate(box.center().x(), box.center().y())
        .scale(box.width() / 20, box.height() / 20)
        .map(shape);
}

QPainterPath diamond(double halfWidth) {
    QPainterPath half = outline("M0 -10 C2.6 -6.4 6 -3 10 0 C6 3 2.6 6.4 0 10");
    return completed(QTransform::fromScale(halfWidth / 10, 1).map(half));
}

QPainterPath heart() {
    return completed(outline("M0 -5.6 C0.9 -8.6 2.9 -10 5.2 -10 C8 -10 10 -7.8 10 -4.6 C10 0.6 3.4 3.8 0 10"));
}

/// A club on its foot; the lobes have that radius, and the lower two their middles at that height.
QPainterPath club(QPainterPath foot, double radius, double shoulder) {
    for (const QPointF& lobe :
         {QPointF(0, radius - 10), QPointF(10 - radius, shoulder), QPointF(radius - 10, shoulder)}) {
        foot.addEllipse(lobe, radius, radius);
    }
    return foot;
}

/// The foot on which a club or spade stands.
QPainterPath foot() {
    return completed(outline("M0 -3 L2.6 -0.6 L0.9 2.6 C1 6.6 2.2 9 4.6 10 L0 10"));
}

QPainterPath spade() {
    QPainterPath spade = foot();
    spade.addPath(completed(outline("M0 -10 C3 -4.4 10 -1.6 10 3 C10 5.6 8.2 7.2 5.9 7.2 C3.8 7.2 2 6.2 0 3.4")));
    return spade;
}

/// The foot of a small club or spade: a stem of one to three pixels in the middle of the box, and a sole one high.
QPainterPath smallFoot(QSize size) {
    const int width = size.width();
    const bool isEven = width % 2 == 0;
    const int stem = isEven ? 2 : width < 9 ? 1 : 3;
    const int sole = stem + (isEven && width >= 10 ? 4 : 2);
    const double rise = 20.0 / size.height();
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRect(-10.0 * stem / width, -2, 20.0 * stem / width, 12);
    path.addRect(-10.0 * sole / width, 10 - rise, 20.0 * sole / width, rise);
    return path;
}

/// A small spade, whose blade ends one pixel above the sole.
QPainterPath smallSpade(QSize size) {
    QPainterPath spade = smallFoot(size);
    const QPainterPath blade = completed(outline("M0 -10 C1.4 -5 10 -1 10 4.4 C10 7 8.2 8 6 8 C3.8 8 2 7 0 5"));
    const double length = 20 - 40.0 / size.height();
    spade.addPath(QTransform::fromTranslate(0, -10).scale(1, length / 18).translate(0, 10).map(blade));
    return spade;
}

QPainterPath ofPixels(std::string_view rows, const QRect& pixels) {
    QPainterPath path;
    const int width = pixels.width();
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        if (rows[static_cast<std::size_t>(i)] == '#') {
            path.addRect(QRect(pixels.left() + i % width, pixels.top() + i / width, 1, 1));
        }
    }
    return path;
}

} // namespace

QRgb suitColour(Suit suit) {
    return suit == Suit::Diamonds || suit == Suit::Hearts ? red : black;
}

QPainterPath suitSymbol(Suit suit, const QRectF& box) {
    switch (suit) {
    case Suit::Clubs:
        return stretched(club(foot(), 4.6, 1.7), box);
    case Suit::Diamonds:
        return stretched(diamond(8.4), box);
    case Suit::Hearts:
        return stretched(heart(), box);
    case Suit::Spades:
        return stretched(spade(), box);
    }
    return {};
}

QPainterPath smallSuitSymbol(Suit suit, const QRect& pixels) {
    for (const TinySuits& tiny : tinySuits) {
        if (tiny.size == pixels.size()) {
            return ofPixels(tiny.rows.at(static_cast<std::size_t>(suit)), pixels);
        }
    }
    switch (suit) {
    case Suit::Clubs:
        return stretched(club(smallFoot(pixels.size()), 4.2, 0.6), pixels);
    case Suit::Diamonds:
        return stretched(diamond(10), pixels);
    case Suit::Hearts:
        return stretched(heart(), pixels);
    case Suit::Spades:
        return stretched(smallSpade(pixels.size()), pixels);
    }
    return {};
}

QPainterPath star(const QRectF& box) {
    return stretched(completed(outline("M0 -10 L2.4 -3.1 L10 -3 L4 1.6 L6.2 9.4 L0 4.8")), box);
}

} // namespace tumble
