#pragma once

#include "art/Drawing.h"
#include "art/SuitSymbols.h"

namespace tumble::art {

/// Paints rank and suit in the upper left corner. The rank is 1 for the ace to 13 for the king.
void paintIndex(const Drawing& drawing, int rank, Suit suit);

/// Paints the joker's star and name in the upper left corner.
void paintJokerIndex(const Drawing& drawing);

} // namespace tumble::art
