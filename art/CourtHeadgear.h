#pragma once

#include "art/Pieces.h"

/// Crowns, coronets and caps of the court figures.
namespace tumble::art::court {

using enum Material;
using enum Style;

// The crowns of the kings.

inline constexpr std::array archedCrown = {
    Piece{Red, FillHalf, "M0 -52.6 C5 -54.4 11 -53 10.6 -46 L0 -47"},
    Piece{Yellow, FillPair, "M3.6 -53.4 L6 -53.4 C6.8 -51 6.8 -49 6.4 -46.4 L4 -46.6 C4.6 -49 4.4 -51 3.6 -53.4 Z"},
    Piece{Yellow, FillHalf, "M0 -48.4 C4 -48.4 7.6 -48 11 -47.2 L9.4 -43.8 C6 -44.8 3 -45 0 -45"},
    Piece{Yellow, Fill,
          "M-1 -52 L-1 -53.2 L-2.4 -53.2 L-2.4 -54.8 L-1 -54.8 L-1 -56 L1 -56 L1 -54.8 L2.4 -54.8 "
          "L2.4 -53.2 L1 -53.2 L1 -52 Z"},
};

inline constexpr std::array pearledCrown = {
    Piece{Yellow, FillHalf, "M0 -53.4 L2.6 -48.6 L6.6 -53 L8 -48.4 L12.4 -51.6 L9.4 -43.8 C6 -44.8 3 -45 0 -45"},
    Piece{Red, FillPair, "O 0 -54.2 1.4 O 6.8 -53.6 1.4 O 12.4 -52 1.4"},
    Piece{Black, StrokePair, "M0 -47.4 C4 -47.4 7.6 -46.8 10 -46.2"},
};

inline constexpr std::array lilyCrown = {
    Piece{Yellow, FillHalf,
          "M0 -56 C1.6 -54.6 2 -53.4 1.2 -51.6 C2.6 -52.8 4.2 -52 3.8 -50.4 L6.6 -50 "
          "C6 -52 6.8 -53.6 8.6 -54.6 C9.8 -53.4 10 -52.4 9.8 -51 C11 -52.4 13 -51.6 12.4 -49.8 "
          "L9.4 -43.8 C6 -44.8 3 -45 0 -45"},
    Piece{Red, FillHalf, "M0 -48.8 C4 -48.8 7.4 -48.4 10.8 -47.4 L9.4 -43.8 C6 -44.8 3 -45 0 -45"},
    Piece{Yellow, FillPair, "O 0 -46.8 1 O 4.6 -46.5 1"},
};

inline constexpr std::array towerCrown = {
    Piece{Yellow, FillHalf,
          "M0 -55.4 L2.4 -55.4 L2.4 -51.8 L5.4 -51.6 L5.6 -55 L8.4 -54.8 L8.2 -51.2 L11 -50.8 L11.8 -54 "
          "L13.6 -53.6 L9.4 -43.8 C6 -44.8 3 -45 0 -45"},
    Piece{Black, StrokePair, "M0 -49.4 C4 -49.4 8 -48.8 11.4 -48"},
    Piece{Red, FillPair, "M0 -48.6 L1.4 -47 L0 -45.6 L-1.4 -47 Z M6 -48 L7.4 -46.4 L6 -45.2 L4.6 -46.6 Z"},
};

// The coronets of the queens.

inline constexpr std::array pearlCoronet = {
    Piece{Yellow, FillHalf, "M0 -51 C4 -51 8 -50.4 11.6 -49.2 L10 -44.6 C6.6 -46.4 3 -46.8 0 -46.8"},
    Piece{White, FillPair, "O 11.6 -51 1.8 O 7.8 -52.4 1.8 O 4 -53.2 1.8 O 0 -53.6 1.8"},
    Piece{Red, FillPair, "O 0 -48.8 1 O 5 -48.4 1"},
};

inline constexpr std::array tiara = {
    Piece{Yellow, FillHalf,
          "M0 -56 C1.4 -53 4 -51.6 6.4 -52.4 C7.6 -50.6 9.6 -50.2 11.6 -50.8 L10 -44.6 "
          "C6.6 -46.4 3 -46.8 0 -46.8"},
    Piece{Red, FillHalf, "M0 -52.4 L1.8 -50 L0 -47.6"},
    Piece{White, FillPair, "O 5.4 -49 1.3 O 9 -48.2 1.1"},
};

inline constexpr std::array leafCoronet = {
    Piece{Yellow, FillHalf,
          "M0 -56 C1.8 -54 2 -52.6 1 -50.6 L4.6 -50.4 C4 -53 5 -54.6 6.6 -55.6 C8 -53.6 8 -52 7.2 -50 L9.4 -49.6 "
          "C9.4 -52 10.6 -53.2 12.6 -53.6 C13 -50 11.6 -47 10 -44.6 C6.6 -46.4 3 -46.8 0 -46.8"},
    Piece{Red, FillHalf, "M0 -49.4 C4 -49.4 7.6 -48.8 11 -47.6 L10 -44.6 C6.6 -46.4 3 -46.8 0 -46.8"},
};

inline constexpr std::array spikedCoronet = {
    Piece{Yellow, FillHalf,
          "M0 -55.6 L1.8 -50.6 L4.6 -54.8 L5.6 -50.2 L9 -53.8 L9 -49.4 L13 -52 L10 -44.6 "
          "C6.6 -46.4 3 -46.8 0 -46.8"},
    Piece{Black, StrokePair, "M0 -49.2 C4 -49.2 8 -48.6 10.8 -47.4"},
};

// The caps of the jacks.

inline constexpr std::array plumedCap = {
    Piece{Yellow, Fill, "M7 -49 C10 -55 16 -57.4 19 -53.6 C20.4 -51 18 -48.8 16 -49.6 C15 -47 10 -45 7 -46.6 Z"},
    Piece{Black, Stroke, "M7 -47.6 C11 -49 14 -51 16.4 -53"},
    Piece{Mantle, FillHalf, "M0 -54 C7 -54 13 -52 11.4 -47 L0 -47"},
    Piece{Trim, FillHalf, "M0 -49.4 C5 -49.4 9 -49 12.4 -47.6 L10.4 -43.8 C6 -45.2 3 -45.4 0 -45.4"},
};

inline constexpr std::array softCap = {
    Piece{Mantle, Fill,
          "M-10 -46 C-12 -51 -6 -55 1 -55.4 C8 -55.8 14 -53 15.6 -47 C16 -45 14 -43.6 12.4 -44.8 "
          "C11.6 -46 10 -46.4 9 -46 Z"},
    Piece{Black, Stroke, "M4 -54.6 C8 -53 10 -50 10.4 -47.4 M-4 -53.6 C-1 -52.4 1 -51 1.6 -48.8"},
    Piece{Trim, FillHalf, "M0 -49 C4 -49 8 -48.6 11 -47.4 L9.8 -43.8 C6 -45 3 -45.2 0 -45.2"},
};

inline constexpr std::array broadCap = {
    Piece{Mantle, FillHalf, "M0 -55 C5 -55 8.6 -53.4 8.6 -47 L0 -47"},
    Piece{Trim, FillHalf, "M0 -50 C4 -50 9 -50.6 12.6 -53 C14.2 -49.6 12.8 -45.4 9.8 -43.8 C6 -45 3 -45.2 0 -45.2"},
    Piece{Red, Fill, "O 0 -47.8 1.7"},
};

inline constexpr std::array peakedCap = {
    Piece{Mantle, FillHalf, "M0 -56 C3 -53.6 8 -53.4 9.6 -47 L0 -47"},
    Piece{Trim, FillHalf, "M0 -51.6 C2 -49.6 6 -49 13.6 -49.4 C13 -46.6 12 -45 9.8 -43.8 C6 -45 3 -45.2 0 -45.2"},
    Piece{Black, StrokePair, "M0 -49 C3 -47.4 7 -47 11.6 -47.2"},
};

} // namespace tumble::art::court
