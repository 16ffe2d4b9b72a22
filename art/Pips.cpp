#include "art/Pips.h"

#include "art/Figure.h"
#include "art/Marks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace tumble {

namespace {

constexpr QSizeF pipSize(15, 16);
constexpr QSizeF acePipSize(33, 36);

// The columns and rows of the pips of the upper half and the middle.
constexpr double left = 22.5;
constexpr double middle = cardWidth / 2;
constexpr double right = cardWidth - left;
constexpr double top = 18;
constexpr double second = 48;
constexpr double centre = cardHeight / 2;
constexpr double betweenTopAndSecond = (top + second) / 2;
constexpr double betweenTopAndCentre = (top + centre) / 2;

// The pips that stand upright, for the ranks from the ace to the ten.
constexpr std::array ace = {QPointF(middle, centre)};
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
    const std::array<std::span<const QPointF>, 10> layouts = {ace, two,   three, four, five,
                                                              six, seven, seven, nine, ten};
    return layouts.at(static_cast<std::size_t>(rank) - 1);
}

/// Whether the pip has its like in the lower half, upside down.
bool isPaired(int rank, const QPointF& pip) {
    return pip.y() < centre && !(rank == 7 && pip.x() == middle);
}

/// A number of pixels near a length, such that what is as long lies in the middle of the whole on whole pixels.
int centrable(double length, int whole) {
    return whole - 2 * static_cast<int>(std::lround((whole - length) / 2));
}

/// Where a pip lies in pixels. All pips of a card are equally large, and columns and rows even about its middle.
QRect pipPixels(const QPainter& painter, const QPointF& pip, const QSizeF& size) {
    const QRect card = fitted(painter, QRectF(0, 0, cardWidth, cardHeight));
    const QRectF exact = painter.transform().mapRect(QRectF(pip, size));
    const int width = centrable(exact.width(), card.width());
    const int height = centrable(exact.height(), card.height());
    const double nearer = std::min(exact.left(), card.width() - exact.left());
    const int x = pip.x() == middle ? (card.width() - width) / 2 : static_cast<int>(std::lround(nearer - width / 2.0));
    const int y =
        pip.y() == centre ? (card.height() - height) / 2 : static_cast<int>(std::lround(exact.top() - height / 2.0));
    return {pip.x() > middle ? card.width() - width - x : x, y, width, height};
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
    painter.fillPath(suitSymbol(Suit::Spades, QRectF(-25, -32, 50, 62)), QColor(black));
    paintPieces(painter, inlay, dressed(white, {}, {}, {}, {}));
    painter.restore();
}

} // namespace

void paintPairedPips(QPainter& painter, int rank, Suit suit) {
    for (const QPointF& pip : uprightPips(rank)) {
        if (isPaired(rank, pip)) {
            paintSuit(painter, suit, pipPixels(painter, pip, pipSize));
        }
    }
}

void paintSinglePips(QPainter& painter, int rank, Suit suit) {
    if (rank == 1 && suit == Suit::Spades) {
        paintAceOfSpades(painter);
        return;
    }
    for (const QPointF& pip : uprightPips(rank)) {
        if (!isPaired(rank, pip)) {
            paintSuit(painter, suit, pipPixels(painter, pip, rank == 1 ? acePipSize : pipSize));
        }
    }
}

} // namespace tumble
