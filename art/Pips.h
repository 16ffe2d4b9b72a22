#pragma once

#include "art/Drawing.h"
#include "art/SuitSymbols.h"

namespace tumble::art {

/// Paints the pips of a card, from the ace (1) to the ten, that the lower half repeats upside down.
void paintPairedPips(const Drawing& drawing, int rank, Suit suit);

/// Paints the other pips, all of them upright.
void paintSinglePips(const Drawing& drawing, int rank, Suit suit);

} // namespace tumble::art
