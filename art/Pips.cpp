#include "art/Pips.h"

#include "art/Figure.h"
#include "art/Marks.h"

#include <array>
#include <span>

namespace tumble {

namespace {

constexpr QSizeF pipSize(15, 16);
constexpr QSizeF acePipSize(27, 30);

// The columns and rows of the pips; the rows of the lower half are those of the upper half turned about.
constexpr double left = 22.5;
constexpr double middle = cardWidth / 2;
constexpr double right = cardWidth - left;
constexpr double top = 18;
constexpr double second = 48;
constexpr double centre = cardHeight / 2;
constexpr double betweenTopAndSecond = (top + second) / 2;
constexpr double betweenTopAndCentre = (top + centre) / 2;

// The pips that stand upright, for the ranks from two to ten.
constexpr std::array two = {QPointF(middle, top)};
constexpr std::array three = {QPointF(middle, top), QPointF(middle, centre)};
constexpr std::array four = {QPointF(left, top), QPointF(right, top)};
constexpr std::array five = {QPointF(left, top), QPointF(right, top), QPointF(middle, centre)};
constexpr std::array six = {QPointF(left, top), QPointF(right, top), QPointF(left, centre), QPointF(right, centre)};
constexpr std::array seven = {QPointF(left, top), QPointF(right, top), QPointF(left, centre), QPointF(right, centre),
                              QPointF(middle, betweenTopAndCentre)};
constexpr std::array nine = {QPointF(left, top), QPointF(right, top), QPointF(left, second), QPointF(right, second),
                             QPointF(middle, centre)};
constexpr std::array ten = {QPointF(left, top), QPointF(right, top), QPointF(left, second), QPointF(right, second),
                            QPointF(middle, betweenTopAndSecond)};

std::span<const QPointF> uprightPips(int rank) {
    const std::array<std::span<const QPointF>, 9> layouts = {two, three, four, five, six, seven, seven, nine, ten};
    return layouts.at(static_cast<std::size_t>(rank) - 2);
}

/// The pips that stand upside down are the upright ones of the upper half turned, but the seven leaves its middle out.
bool isTurnedToo(int rank, const QPointF& pip) {
    return pip.y() < centre && !(rank == 7 && pip.x() == middle);
}

QRectF boxAround(const QPointF& point, const QSizeF& size) {
    return {point.x() - size.width() / 2, point.y() - size.height() / 2, size.width(), size.height()};
}

/// The inlay of the ace of spades: a rim that follows the spade, and a lily between scrolls. The origin is the middle.
constexpr std::array inlay = {
    Piece{Cloth::White, Form::Lines, "M0 -24 C6 -12 20 -6 20 8 C20 14 16 17.4 11.4 17.4 C7 17.4 3.4 15.4 1.6 11.4"},
    Piece{Cloth::White, Form::Lines, "M1 9 C6 13.4 15 12 15 6.4 C15 2 9.4 2 9.4 5.4 C9.4 7.6 12 8 12.2 6"},
    Piece{Cloth::White, Form::Whole,
          "M0 -15 C3.4 -10 4 -6 1.6 -1 C4 -6.4 9.6 -6 9 -1.6 C8.6 1.4 5 1 5.4 -1 C3.6 -0.4 2.4 1.4 2.6 3.4 L0 9"},
    Piece{Cloth::Black, Form::Line, "M-3.4 2.2 L3.4 2.2"},
    Piece{Cloth::White, Form::Twins, "O 4.4 -11.4 0.9"},
};

/// A great spade, inlaid in white.
void paintAceOfSpades(QPainter& painter) {
    painter.save();
    painter.translate(middle, centre);
    painter.fillPath(suitSymbol(Suit::Spades, QRectF(-25, -32, 50, 62), Weight::Regular), QColor(black));
    paintPieces(painter, inlay, dressed(white, {}, {}, {}, {}));
    painter.restore();
}

} // namespace

void paintPips(QPainter& painter, int rank, Suit suit) {
    if (rank == 1 && suit == Suit::Spades) {
        paintAceOfSpades(painter);
        return;
    }
    if (rank == 1) {
        paintSuit(painter, suit, boxAround({middle, centre}, acePipSize));
        return;
    }
    for (const QPointF& pip : uprightPips(rank)) {
        paintSuit(painter, suit, boxAround(pip, pipSize));
    }
    turnCard(painter);
    for (const QPointF& pip : uprightPips(rank)) {
        if (isTurnedToo(rank, pip)) {
            paintSuit(painter, suit, boxAround(pip, pipSize));
        }
    }
    turnCard(painter);
}

} // namespace tumble
