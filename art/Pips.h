#pragma once

#include "art/Symbols.h"

#include <QPainter>

namespace tumble {

/// Paints those pips of the upper half of a card, from the ace (1) to the ten, that the lower half has upside down.
void paintPairedPips(QPainter& painter, int rank, Suit suit);

/// Paints the other pips, which stand upright.
void paintSinglePips(QPainter& painter, int rank, Suit suit);

} // namespace tumble
