#include "art/Symbols.h"

#include "art/Outline.h"

#include <QTransform>

namespace tumble {

namespace {

const char* glyphLine(char character) {
    switch (character) {
    case 'A':
        return "M0 16 L4 0.6 L8 16 M2 9 L6 9";
    case '2':
        return "M1 4.6 C1 2.2 2.1 1 4 1 C5.9 1 7 2.2 7 4 C7 7 1.5 8.4 1 12 L8 12";
    case '3':
        return "M0.6 1 L6.4 1 L3.5 5.4 C5.9 5.4 7 6.7 7 8.7 C7 10.8 5.8 12 4 12 C2.3 12 1.2 11.2 0.8 9.4";
    case '4':
        return "M6 13 L6 1.6 L1.2 9 L8 9";
    case '5':
        return "M7.4 1 L2 1 L1.6 6.6 C2.2 5.8 3 5.4 4 5.4 C5.9 5.4 7 6.6 7 8.6 C7 10.8 5.8 12 4 12 C2.3 12 1.2 11.2 "
               "0.8 9.4";
    case '6':
        return "M6 -1.4 L2.1 5.2 C1.3 6.6 1 7.4 1 8.6 C1 10.8 2.1 12 4 12 C5.9 12 7 10.8 7 8.6 C7 6.4 5.9 5.4 4.2 5.4 "
               "C3 5.4 2.2 5.8 1.6 6.6";
    case '7':
        return "M0 1 L6.9 1 C4.6 4.2 3.4 8 3.2 14";
    case '8':
        return "M4 6.2 C2.4 6.2 1.4 5.2 1.4 3.6 C1.4 1.9 2.4 1 4 1 C5.6 1 6.6 1.9 6.6 3.6 C6.6 5.2 5.6 6.2 4 6.2 "
               "C2.1 6.2 1 7.2 1 9.1 C1 11 2.1 12 4 12 C5.9 12 7 11 7 9.1 C7 7.2 5.9 6.2 4 6.2 Z";
    case '9':
        return "M2 14.4 L5.9 7.8 C6.7 6.4 7 5.6 7 4.4 C7 2.2 5.9 1 4 1 C2.1 1 1 2.2 1 4.4 C1 6.6 2.1 7.6 3.8 7.6 C5 "
               "7.6 5.8 7.2 6.4 6.4";
    case '0':
        return "M1 0 L1 13 M5.5 1 C4.5 1 4 1.6 4 3 L4 10 C4 11.4 4.5 12 5.5 12 C6.5 12 7 11.4 7 10 L7 3 "
               "C7 1.6 6.5 1 5.5 1 Z";
    case 'J':
        return "M3 1 L8 1 M6 1 L6 9 C6 11 5.2 12 3.6 12 C2 12 1 11 1 9 L1 8.4";
    case 'Q':
        return "M4 1 C2 1 1 2.4 1 5 L1 8 C1 10.6 2 12 4 12 C6 12 7 10.6 7 8 L7 5 C7 2.4 6 1 4 1 Z M3.6 8 L8.6 14";
    case 'O':
        return "M4 1 C2 1 1 2.4 1 5 L1 8 C1 10.6 2 12 4 12 C6 12 7 10.6 7 8 L7 5 C7 2.4 6 1 4 1 Z";
    case 'K':
        return "M1 0 L1 13 M7.8 -1 L1 8 M3.4 5 L7.6 14";
    case 'E':
        return "M8 1 L1 1 L1 12 L8 12 M1 6.5 L6.6 6.5";
    case 'R':
        return "M1 13 L1 1 L4 1 C6 1 7 2.2 7 4 C7 5.8 6 7 4 7 L1 7 M4 7 L7.6 14";
    default:
        qFatal("The index has no '%c'", character);
    }
}

/// A shape from -10 to 10 either way, stretched into a box.
QPainterPath stretched(const QPainterPath& shape, const QRectF& box) {
    return QTransform::fromTranslate(box.center().x(), box.center().y())
        .scale(box.width() / 20, box.height() / 20)
        .map(shape);
}

/// The foot on which a club or spade stands.
QPainterPath foot(Weight weight) {
    return completed(weight == Weight::Sturdy ? outline("M0 -3 L2.5 -1 L2.5 8 L5 8 L5 10 L0 10")
                                              : outline("M0 -3 L2.6 -0.6 L0.9 2.6 C1 6.6 2.2 9 4.6 10 L0 10"));
}

QPainterPath club(Weight weight) {
    QPainterPath club = foot(weight);
    const double radius = weight == Weight::Sturdy ? 4.2 : 4.6;
    const double shoulder = weight == Weight::Sturdy ? 0.6 : 1.7;
    for (const QPointF& lobe :
         {QPointF(0, radius - 10), QPointF(10 - radius, shoulder), QPointF(radius - 10, shoulder)}) {
        club.addEllipse(lobe, radius, radius);
    }
    return club;
}

QPainterPath spade(Weight weight) {
    QPainterPath spade = foot(weight);
    spade.addPath(completed(weight == Weight::Sturdy
                                ? outline("M0 -10 C1.4 -5 10 -1 10 4.4 C10 7 8.2 8 6 8 C3.8 8 2 7 0 5")
                                : outline("M0 -10 C3 -4.4 10 -1.6 10 3 C10 5.6 8.2 7.2 5.9 7.2 C3.8 7.2 2 6.2 0 3.4")));
    return spade;
}

QPainterPath symbol(Suit suit, Weight weight) {
    switch (suit) {
    case Suit::Clubs:
        return club(weight);
    case Suit::Diamonds:
        return completed(outline("M0 -10 C2.2 -6.4 5 -3 8.4 0 C5 3 2.2 6.4 0 10"));
    case Suit::Hearts:
        return completed(outline("M0 -5.6 C0.9 -8.6 2.9 -10 5.2 -10 C8 -10 10 -7.8 10 -4.6 C10 0.6 3.4 3.8 0 10"));
    case Suit::Spades:
        return spade(weight);
    }
    return {};
}

} // namespace

QRgb suitColour(Suit suit) {
    return suit == Suit::Diamonds || suit == Suit::Hearts ? red : black;
}

QPainterPath suitSymbol(Suit suit, const QRectF& box, Weight weight) {
    return stretched(symbol(suit, weight), box);
}

QPainterPath glyph(char character) {
    return outline(glyphLine(character));
}

QPainterPath star(const QRectF& box) {
    return stretched(completed(outline("M0 -10 L2.4 -3.1 L10 -3 L4 1.6 L6.2 9.4 L0 4.8")), box);
}

} // namespace tumble
