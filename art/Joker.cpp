#include "art/Joker.h"

#include "art/CourtBodies.h"
#include "art/SuitSymbols.h"

namespace tumble::art {

namespace {

using enum Material;
using enum Style;

/// The right side of the jester.
constexpr std::array side = {
    Piece{Sleeve, Fill, "M0.4 18 L9.6 18 C11 28 11.6 38 11 46 L6 46 C4.6 36 2 28 0.4 24 Z"},
    Piece{Trim, Fill, "M5.6 45 L11.4 45 C14 47.4 18 48 20 44 C21 42.4 23 43 22.4 45 C21 51 14 52.6 6 52 Z"},
    Piece{Yellow, Fill, "O 22 42 1.7"},
    Piece{Front, Fill, "M0 14 L7 14 L13 20 L10.6 26 L8 21.6 L5.2 27 L2.8 21.8 L0 27 Z"},
    Piece{Mantle, Fill, "M0 -10 L7 -9 C10 -7 8 6 7 14 L0 14 Z"},
    Piece{Yellow, Fill, "M0 12.6 L7.2 12.6 L7.6 15.6 L0 15.6 Z"},
    Piece{White, Fill,
          "M19.8 -15.4 C18.4 -18 17.6 -20 18.4 -20.8 C19.2 -21.4 20 -19.6 20.6 -19 L21 -23.4 "
          "C21.2 -24.6 22.4 -24.6 22.6 -23.6 L23 -22.8 C24 -24 25 -23.4 25 -22.2 C25.8 -22 26 -21 25.8 -20 "
          "C25.4 -17.8 25 -16.6 24.8 -14.8 Z"},
    Piece{Sleeve, Fill,
          "M6 -9 C10 -9 14 -5 17 -2 C18.4 -6 19 -10 19.4 -14 L25 -13 C25.4 -6 24 2 19.6 5 C15 6 9 2 7.4 0 Z"},
    Piece{Trim, Fill, "M18.6 -16 L25.8 -15 L25.4 -11.8 L18.4 -12.8 Z"},
    Piece{Front, Fill, "M0 -13 L6 -13 L14 -8 L9.6 -5.6 L9 0.4 L4.6 -3.6 L0 3 Z"},
    Piece{Yellow, Fill, "O 14 -7 1.4"},
    Piece{Yellow, Fill, "O 9 1.4 1.4"},
    Piece{Mantle, Fill,
          "M0 -36 C4 -43 14 -44 19 -35 C20 -33 20 -31 19.6 -29 C17.6 -33 12 -34 9.6 -30 L9 -20 "
          "C8.6 -16 7 -12 4 -10 L0 -10 Z"},
    Piece{Yellow, Fill, "O 19.6 -27.4 2"},
};

/// Lifts the corners of the mouth of a court face.
constexpr std::array grin = {
    Piece{Black, StrokePair, "M0 -29.2 C1.6 -29.2 3.2 -30.2 3.8 -32"},
};

constexpr std::array cap = {
    Piece{Yellow, FillHalf, "M0 -45 C3.4 -42 5.4 -38 5 -32 L0 -32"},
    Piece{Yellow, Fill, "O 0 -45 2"},
    Piece{White, FillHalf, "M0 -33.4 C4 -33.4 7 -33 9.6 -31.4 L8.8 -28 C6 -29.6 3 -30 0 -30"},
};

} // namespace

void paintJester(const Drawing& drawing) {
    const Materials right = materials(yellow, {red}, {yellow}, {black, Pattern::Lozenges, yellow}, {red});
    const Materials left = materials(yellow, {black, Pattern::Lozenges, yellow}, {red}, {red}, {black});
    const Drawing figure = drawing.moved(wholeCard.centre() + Vec2{0, 4});
    paintPieces(figure.scaled(-1, 1), side, left);
    paintPieces(figure, side, right);
    const Drawing head = figure.moved({0, 15});
    paintPieces(head, court::face, right);
    paintPieces(head, grin, right);
    paintPieces(figure, cap, right);
    const auto paintJuggled = [&](Suit suit, Vec2 corner) {
        paintSuit(drawing.canvas, suit, snapped(drawing, {corner, 11, 11}));
    };
    paintJuggled(Suit::Clubs, {13, 15});
    paintJuggled(Suit::Hearts, {27, 7});
    paintJuggled(Suit::Spades, {43, 7});
    paintJuggled(Suit::Diamonds, {57, 15});
}

} // namespace tumble::art
