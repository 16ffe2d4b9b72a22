#include "art/Pips.h"

#include "art/CardDrawing.h"
#include "art/Figure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace tumble::art {

namespace {

constexpr Vec2 pipSize{15, 16};
constexpr Vec2 acePipSize{33, 36};

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
constexpr std::array ace = {Vec2{middle, centre}};
constexpr std::array two = {Vec2{middle, top}};
constexpr std::array three = {Vec2{middle, top}, Vec2{middle, centre}};
constexpr std::array four = {Vec2{left, top}, Vec2{right, top}};
constexpr std::array five = {Vec2{left, top}, Vec2{right, top}, Vec2{middle, centre}};
constexpr std::array six = {Vec2{left, top}, Vec2{right, top}, Vec2{left, centre}, Vec2{right, centre}};
constexpr std::array seven = {Vec2{left, top}, Vec2{right, top}, Vec2{left, centre}, Vec2{right, centre},
                              Vec2{middle, betweenTopAndCentre}};
constexpr std::array nine = {Vec2{left, top}, Vec2{right, top}, Vec2{left, second}, Vec2{right, second},
                             Vec2{middle, centre}};
constexpr std::array ten = {Vec2{left, top}, Vec2{right, top}, Vec2{left, second}, Vec2{right, second},
                            Vec2{middle, betweenTopAndSecond}};

std::span<const Vec2> uprightPips(int rank) {
    const std::array<std::span<const Vec2>, 10> layouts = {ace, two, three, four, five, six, seven, seven, nine, ten};
    return layouts.at(static_cast<std::size_t>(rank) - 1);
}

/// Whether the pip has its like in the lower half, upside down.
bool isPaired(int rank, Vec2 pip) {
    return pip.y < centre && !(rank == 7 && pip.x == middle);
}

/// A number of pixels near a length, such that what is as long lies in the middle of the whole on whole pixels.
int centrable(double length, int whole) {
    return whole - 2 * static_cast<int>(std::lround((whole - length) / 2));
}

/// Where a pip lies in pixels. All pips of a card are equally large, and columns and rows even about its middle.
PixelRect pipPixels(const Drawing& drawing, Vec2 pip, Vec2 size) {
    const PixelRect card = fitted(drawing, wholeCard);
    const Box exact = drawing.toPixels(Box{pip, size.x, size.y});
    const PixelSize pixels{centrable(exact.width, card.width()), centrable(exact.height, card.height())};
    const double nearer = std::min(exact.corner.x, card.width() - exact.corner.x);
    const int x = pip.x == middle ? (card.width() - pixels.width) / 2
                                  : static_cast<int>(std::lround(nearer - pixels.width / 2.0));
    const int y = pip.y == centre ? (card.height() - pixels.height) / 2
                                  : static_cast<int>(std::lround(exact.corner.y - pixels.height / 2.0));
    return pixels.at({pip.x > middle ? card.width() - pixels.width - x : x, y});
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
void paintAceOfSpades(const Drawing& drawing) {
    const Drawing card = drawing.moved({middle, centre});
    card.canvas.fill(suitSymbol(Suit::Spades, {{-25, -32}, 50, 62}), card.toPixels, black);
    paintPieces(card, inlay, dressed(white, {}, {}, {}, {}));
}

} // namespace

void paintPairedPips(const Drawing& drawing, int rank, Suit suit) {
    for (const Vec2 pip : uprightPips(rank)) {
        if (isPaired(rank, pip)) {
            paintSuit(drawing.canvas, suit, pipPixels(drawing, pip, pipSize));
        }
    }
}

void paintSinglePips(const Drawing& drawing, int rank, Suit suit) {
    if (rank == 1 && suit == Suit::Spades) {
        paintAceOfSpades(drawing);
        return;
    }
    for (const Vec2 pip : uprightPips(rank)) {
        if (!isPaired(rank, pip)) {
            paintSuit(drawing.canvas, suit, pipPixels(drawing, pip, rank == 1 ? acePipSize : pipSize));
        }
    }
}

} // namespace tumble::art
