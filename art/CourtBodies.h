#pragma once

#include "art/Pieces.h"

/// The parts of the court figures that all of a rank share. The origin is the centre of the card, y grows downwards. A
/// figure fills the upper half of its frame, from x = -28 to 28 and y = -56 to 0.
namespace tumble::art::court {

using enum Material;
using enum Style;

inline constexpr std::array kingRobe = {
    Piece{Mantle, FillHalf, "M0 -27 L7 -27 C13 -26 26 -24 29 -14 L29 14 L0 14"},
    Piece{Front, FillHalf, "M0 -26 L6 -26 L9 14 L0 14"},
    Piece{Trim, FillPair, "M5.4 -26 L9.4 -26 L13 14 L8.6 14 Z"},
    Piece{Fur, FillPair, "M4 -27 C11 -27 20 -25.6 24.4 -20 C22 -16 18 -13.4 14.5 -13.4 C10.5 -17 7 -18.6 2 -18.6 Z"},
};

inline constexpr std::array queenRobe = {
    Piece{Mantle, FillHalf, "M0 -26 L8 -26 C14 -25 26 -22 29 -12 L29 14 L0 14"},
    Piece{Front, FillHalf, "M0 -22 L8 -25 C10 -16 9 -6 11 14 L0 14"},
    Piece{White, FillHalf, "M0 -30 L2.8 -30 L3 -26.6 C5 -25.4 7 -25.4 8.4 -25 C7 -20 3.6 -16.6 0 -15"},
    Piece{Trim, FillPair, "M8 -26 L12 -25 C12.6 -16 12 -6 14.6 14 L10.6 14 C9 -4 9.6 -16 8 -26 Z"},
    Piece{Black, StrokePair, "M3 -26.4 Q1.6 -24.2 0 -23.8"},
    Piece{Red, Fill, "O 0 -22.4 1.5"},
};

inline constexpr std::array jackRobe = {
    Piece{Mantle, FillHalf, "M0 -27 L6 -27 C13 -25 25 -24 29 -14 L29 14 L0 14"},
    Piece{Front, FillHalf, "M0 -25 L4.4 -25 L8 14 L0 14"},
    Piece{Trim, FillPair, "M4 -26 C9 -26 15 -25 19 -23 L12 14 L7 14 Z"},
    Piece{White, FillHalf, "M0 -28 L3.6 -29 C7 -27 9.4 -25.6 10 -23 C7 -21.4 3 -21.6 0 -22.8"},
    Piece{Black, StrokePair, "M4.4 -26.6 L4 -23"},
};

inline constexpr std::array face = {
    Piece{White, FillHalf, "M0 -47 L6.4 -47 C7.2 -40 7 -35 5.6 -31.4 C4.4 -28.6 2.2 -27 0 -27"},
    Piece{Black, StrokePair, "M1.2 -37.5 Q3 -39.4 5 -37.3 M1.2 -40.2 Q3.4 -41.6 5.6 -40"},
    Piece{Black, FillPair, "O 3 -37.5 0.6"},
    Piece{Black, Stroke, "M-1.1 -39.8 L-1.4 -34.6 Q-1.4 -33.5 1 -33.5"},
    Piece{Red, FillHalf, "M0 -31.2 Q1 -31.8 2.2 -30.8 Q1 -29.4 0 -29.4"},
};

inline constexpr std::array kingHair = {
    Piece{Hair, FillPair,
          "M5 -46 C9.5 -47.5 11.8 -43.5 10.4 -40.5 C12.8 -38.5 12.6 -34.5 10.6 -33 "
          "C12.4 -30 10.4 -26 6.4 -26.4 L4 -30 Z"},
    Piece{Curl, StrokePair, "M8.6 -44 Q7.4 -41.4 9 -39.4 M9 -39 Q7.6 -36 9.4 -33.6 M8.6 -32.6 Q7.4 -30.4 8.4 -28"},
};

inline constexpr std::array kingBeard = {
    Piece{Hair, FillHalf, "M0 -32 C3 -33.6 5 -32 6.8 -36.6 C8.2 -31 7.4 -26 5.4 -23 C4 -20.8 1.8 -20.8 0 -17.6"},
    Piece{Red, FillHalf, "M0 -30 L1.6 -30 Q1 -28.6 0 -28.6"},
    Piece{Curl, StrokePair,
          "M0 -32 C1.8 -31.8 3.6 -30.8 4.6 -28.6 M1.2 -26.6 Q2 -24 1 -21.4 M3.6 -26.6 Q4.2 -24.6 3 -22.6"},
};

inline constexpr std::array queenHair = {
    Piece{Hair, FillPair,
          "M0 -48 C8 -48.5 11.6 -44 11 -38.5 C10.6 -34.5 14 -32 13.4 -28 C12.8 -24 8.6 -23.4 6.6 -26 L3 -34 Z"},
};

inline constexpr std::array queenTresses = {
    Piece{Hair, FillPair,
          "M0 -46.5 C3.6 -45.6 6 -42 6.2 -37 C6.4 -33.4 5.4 -31 6.6 -27.6 C8.8 -30 9.4 -41 7 -47 L0 -48 Z"},
    Piece{Curl, StrokePair, "M9 -44 C10 -39 8.6 -35 11 -31 Q12 -28 10.4 -26"},
};

inline constexpr std::array jackHair = {
    Piece{Hair, FillPair,
          "M2 -46 L9 -46 C10.8 -41 9.6 -35 12.6 -31.4 C14 -28.4 10.4 -26.4 7.4 -28.4 C5.4 -30 5 -36 4 -40 Z"},
    Piece{Curl, StrokePair, "M8.4 -43 C9.2 -38 8 -34 10.4 -30.6"},
};

inline constexpr std::array arm = {
    Piece{Sleeve, Fill, "M13 14 C11 4 13 -6 16 -12 L25 -12 C28 -6 29 2 29 14 Z"},
    Piece{Trim, Fill, "M14.8 -14.6 L26 -14.6 L26.6 -10.4 L14.4 -10.4 Z"},
    Piece{
        White, Fill,
        "M16.4 -14.6 L16.4 -20 C16.6 -22.2 19 -22.4 20.4 -22.2 L23.6 -21.4 C25 -20.8 25 -19 24.4 -17.6 L23.6 -14.6 Z"},
    Piece{Black, Stroke, "M19.6 -19.6 L24.4 -19 M19.8 -17.2 L24.2 -16.8"},
};

} // namespace tumble::art::court
