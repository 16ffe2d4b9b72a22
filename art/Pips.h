#pragma once

#include "art/Symbols.h"
#include "platform/paint/Canvas.h"

namespace tumble::art {

/// Paints those pips of the upper half of a card, from the ace (1) to the ten, that the lower half has upside down.
void paintPairedPips(const Drawing& drawing, int rank, Suit suit);

/// Paints the other pips, which stand upright.
void paintSinglePips(const Drawing& drawing, int rank, Suit suit);

} // namespace tumble::art
