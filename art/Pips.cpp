#include "art/Pips.h"

#include "art/Pieces.h"

#include <array>
#include <cmath>
#include <span>

namespace tumble::art {

namespace {

constexpr Vec2 pipSize{15, 16};
constexpr Vec2 acePipSize{33, 36};

// The columns and rows of pips, down to the middle of the card.
constexpr double left = 22.5;
constexpr double middle = wholeCard.width / 2;
constexpr double right = wholeCard.width - left;
constexpr double top = 18;
constexpr double second = 48;
constexpr double centre = wholeCard.height / 2;
constexpr double betweenTopAndSecond = (top + second) / 2;
constexpr double betweenTopAndCentre = (top + centre) / 2;

// The upright pips of the ranks from the ace to the ten.
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

/// True when the lower half repeats the pip upside down.
bool isPaired(int rank, Vec2 pip) {
    return pip.y < centre && !(rank == 7 && pip.x == middle);
}

/// The whole number of pixels nearest to a length that can be centred in the whole: the rest is even.
int centrable(double length, int whole) {
    return whole - 2 * static_cast<int>(std::lround((whole - length) / 2));
}

/// The first pixel of a length about a place. The lengths about a place and about its mirror image in the whole are
/// mirror images, too, whichever way the place is rounded.
int firstPixel(double place, int length, int whole) {
    const bool isMirrored = place > whole / 2.0;
    const int first = static_cast<int>(std::lround((isMirrored ? whole - place : place) - length / 2.0));
    return isMirrored ? whole - length - first : first;
}

/// The pixels of a pip. All pips of a card are of one size, and columns and rows are symmetrical about its centre.
PixelRect pipPixels(const Drawing& drawing, Vec2 pip, Vec2 size) {
    const PixelSize card = drawing.canvas.size();
    const Box exact = drawing.toPixels(Box{pip, size.x, size.y});
    const PixelSize pixels{centrable(exact.width, card.width), centrable(exact.height, card.height)};
    return pixels.at(
        {firstPixel(exact.corner.x, pixels.width, card.width), firstPixel(exact.corner.y, pixels.height, card.height)});
}

void paintPips(const Drawing& drawing, int rank, Suit suit, bool paired) {
    for (const Vec2 pip : uprightPips(rank)) {
        if (isPaired(rank, pip) == paired) {
            paintSuit(drawing.canvas, suit, pipPixels(drawing, pip, rank == 1 ? acePipSize : pipSize));
        }
    }
}

/// The inlay of the ace of spades, about the centre of the card: a rim along the spade, and a lily between scrolls.
constexpr std::array inlay = {
    Piece{Material::White, Style::StrokePair,
          "M0 -24 C6 -12 20 -6 20 8 C20 14 16 17.4 11.4 17.4 C7 17.4 3.4 15.4 1.6 11.4"},
    Piece{Material::White, Style::StrokePair, "M1 9 C6 13.4 15 12 15 6.4 C15 2 9.4 2 9.4 5.4 C9.4 7.6 12 8 12.2 6"},
    Piece{Material::White, Style::FillHalf,
          "M0 -15 C3.4 -10 4 -6 1.6 -1 C4 -6.4 9.6 -6 9 -1.6 C8.6 1.4 5 1 5.4 -1 C3.6 -0.4 2.4 1.4 2.6 3.4 L0 9"},
    Piece{Material::Black, Style::Stroke, "M-3.4 2.2 L3.4 2.2"},
    Piece{Material::White, Style::FillPair, "O 4.4 -11.4 0.9"},
};

void paintAceOfSpades(const Drawing& drawing) {
    const Drawing card = drawing.moved({middle, centre});
    card.canvas.fill(suitSymbol(Suit::Spades, {{-25, -32}, 50, 62}), card.toPixels, black);
    paintPieces(card, inlay, materials(white, {}, {}, {}, {}));
}

} // namespace

void paintPairedPips(const Drawing& drawing, int rank, Suit suit) {
    paintPips(drawing, rank, suit, true);
}

void paintSinglePips(const Drawing& drawing, int rank, Suit suit) {
    if (rank == 1 && suit == Suit::Spades) {
        paintAceOfSpades(drawing);
    } else {
        paintPips(drawing, rank, suit, false);
    }
}

} // namespace tumble::art
