#pragma once

#include "art/Drawing.h"
#include "art/Symbols.h"

namespace tumble {

/// Paints those pips of the upper half of a card, from the ace (1) to the ten, that the lower half has upside down.
void paintPairedPips(const Drawing& drawing, int rank, Suit suit);

/// Paints the other pips, which stand upright.
void paintSinglePips(const Drawing& drawing, int rank, Suit suit);

} // namespace tumble
