#pragma once

#include "art/Symbols.h"

#include <QPainter>

namespace tumble {

/// The rank of the jacks; queens and kings follow.
inline constexpr int firstCourtRank = 11;

/// Paints the double-headed figure of a jack, queen or king in its frame.
void paintCourt(QPainter& painter, int rank, Suit suit);

} // namespace tumble
