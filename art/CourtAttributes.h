#pragma once

#include "art/Pieces.h"

/// The attributes that the court figures hold upright, about the axis x = 0. The hand grips them at y = -18.
namespace tumble::art::court {

using enum Material;
using enum Style;

// The attributes of the kings.

inline constexpr std::array orb = {
    Piece{Yellow, FillHalf, "M0 -45 L1.1 -45 L1.1 -41.8 L4.4 -41.8 L4.4 -39.4 L1.1 -39.4 L1.1 -34 L0 -34"},
    Piece{Red, Fill, "O 0 -28 6.8"},
    Piece{Yellow, FillHalf, "M0 -28.2 C2.6 -28.2 4.6 -28.6 6.6 -29.6 L6.8 -27 C4.6 -26 2.6 -25.6 0 -25.6"},
    Piece{Yellow, FillHalf, "M0 -34.7 L1.1 -34.7 L1.1 -28.2 L0 -28.2"},
};

inline constexpr std::array axe = {
    Piece{Yellow, FillHalf, "M0 -55.5 L1.5 -55.5 L1.5 -20 L0 -20"},
    Piece{White, FillPair,
          "M1.5 -50 C3.4 -50 4.6 -52 5.4 -54.4 C6.7 -49.6 6.7 -43.4 5.4 -38.6 C4.6 -41 3.4 -43 1.5 -43 Z"},
};

inline constexpr std::array sword = {
    Piece{White, FillHalf, "M0 -55.5 L2.5 -50 L2.5 -22 L0 -22"},
    Piece{Black, Stroke, "M0 -36 L0 -27"},
    Piece{Yellow, FillHalf, "M0 -25.5 L6.5 -25.5 L6.5 -22.5 L0 -22.5"},
};

inline constexpr std::array flamingSword = {
    Piece{White, Fill,
          "M-2 -24 C-3.4 -28 -1 -31 -2.2 -35 C-3.4 -39 -1 -41 -2 -45 C-2.6 -49 -1.4 -52 0 -55.6 "
          "C1.4 -52 2.6 -49 2 -45 C3.4 -41 1 -39 1.8 -35 C3.4 -31 1 -28 2 -24 Z"},
    Piece{Black, Stroke, "M0.2 -36 C0 -33 0.4 -31 0 -27.6"},
    Piece{Yellow, FillHalf, "M0 -25.2 C3.4 -25.2 5.4 -25.6 6.8 -27 C7.2 -23.8 3.6 -22.4 0 -22.4"},
};

// The flowers of the queens.

inline constexpr Piece stem = {Black, FillHalf, "M0 -38 L0.5 -38 L0.5 -20 L0 -20"};
inline constexpr Piece leaves = {Yellow, FillPair, "M0 -25 C3.4 -25.4 5.6 -28 5.8 -31.4 C2.4 -31 0.4 -28.6 0 -25 Z"};

inline constexpr std::array daisy = {
    stem,
    leaves,
    Piece{White, FillPair, "O 0 -45 2.1 O 3.3 -43.7 2.1 O 4.6 -40.4 2.1 O 3.3 -37.1 2.1 O 0 -35.8 2.1"},
    Piece{Yellow, Fill, "O 0 -40.4 3"},
};

inline constexpr std::array tulip = {
    stem,
    leaves,
    Piece{Red, FillHalf, "M0 -48.6 L2.4 -43.6 L5.6 -47.4 C6.6 -40 4.8 -35 0 -35"},
    Piece{Yellow, FillHalf, "M0 -48.6 C3 -43 3 -38 0 -35"},
};

inline constexpr std::array rose = {
    stem,
    leaves,
    Piece{Red, Fill, "O 0 -44 3.1"},
    Piece{Red, FillPair, "O 3.4 -41.5 3.1"},
    Piece{Red, FillPair, "O 2.1 -37.5 3.1"},
    Piece{Yellow, Fill, "O 0 -40.4 2.4"},
};

inline constexpr std::array lily = {
    stem,
    leaves,
    Piece{White, FillPair, "M0 -36 C2.4 -38 3.6 -41 5.8 -40 C7 -44 3.4 -46.4 1.8 -42 C1 -40 0.4 -38 0 -36 Z"},
    Piece{White, FillHalf, "M0 -50 C3 -45 3 -41 0 -36"},
    Piece{Yellow, FillHalf, "M0 -37.4 L2.4 -37.4 L2.4 -35 L0 -35"},
};

// The attributes of the jacks.

inline constexpr std::array feather = {
    Piece{Red, Fill,
          "M-0.4 -20 C-2.4 -26 -5 -29 -4.8 -33 C-7 -35 -7.2 -38 -6 -40 C-7.6 -43 -7.2 -46 -5.4 -47.4 "
          "C-5.6 -51 -3 -54.6 0.6 -55 C4.6 -55.4 7.6 -52.6 6.8 -49.6 C6.2 -47.6 4 -47.4 3 -48.6 "
          "C5.4 -46 6.2 -43.4 4.6 -41 C6 -38.4 5.2 -35.4 3.4 -33.8 C3.6 -30 1.6 -26 0.4 -20 Z"},
    Piece{Yellow, Stroke, "M0 -22 C0.6 -30 -1.8 -40 -1 -46 C-0.6 -49.6 1 -51.6 3.6 -51.4"},
    Piece{Black, Stroke, "M-4.8 -33 L-2.4 -31.4 M-6 -40 L-3.4 -38.4 M-5.4 -47.4 L-3.2 -45.8"},
    Piece{Black, Stroke, "M4.6 -41 L2 -39.4 M3.4 -33.8 L1.4 -32"},
};

inline constexpr std::array halberd = {
    Piece{Yellow, FillHalf, "M0 -46 L1.5 -46 L1.5 -6 L0 -6"},
    Piece{White, FillHalf, "M0 -55.6 L2 -43.5 L0 -43.5"},
    Piece{White, Fill, "M1.5 -46 C3.2 -46 4.4 -47.6 5 -49.6 C6.1 -45 6.1 -41 5 -36.4 C4.4 -38.4 3.2 -40 1.5 -40 Z"},
    Piece{White, Fill, "M-1.5 -45.5 L-6.4 -43 L-1.5 -40.5 Z"},
};

inline constexpr std::array leaf = {
    stem,
    Piece{Yellow, FillHalf,
          "M0 -54 C1.6 -51 3.2 -49.6 5 -49.8 C4.8 -47.6 5.2 -46 7 -44.6 C5.6 -43.4 5.2 -42 5.8 -39.6 "
          "C3.4 -39 1.4 -36.6 0 -33"},
    Piece{Black, StrokePair, "M0 -50.6 L0 -34 M0 -44.6 L3.2 -47.4 M0 -39.6 L3.6 -42.6"},
};

inline constexpr std::array partisan = {
    Piece{Red, FillHalf, "M0 -46 L1.5 -46 L1.5 -6 L0 -6"},
    Piece{White, FillHalf, "M0 -55.6 C3.6 -51 3.6 -46 1.6 -41.6 L0 -41.6"},
    Piece{Black, Stroke, "M0 -52 L0 -42"},
    Piece{Yellow, FillHalf, "M0 -41.4 C3 -41.4 5.2 -42.6 6 -46 C6.6 -40.6 3.8 -38 0 -38"},
};

} // namespace tumble::art::court
