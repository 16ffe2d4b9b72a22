#pragma once

#include "art/Symbols.h"

#include <QPainter>

namespace tumble {

/// Paints the pips of a card from the ace (1) to the ten.
void paintPips(QPainter& painter, int rank, Suit suit);

} // namespace tumble
