#pragma once

#include "art/Drawing.h"
#include "art/Symbols.h"

namespace tumble {

/// The rank of the jacks; queens and kings follow.
inline constexpr int firstCourtRank = 11;

/// Paints the upper half of the double-headed figure of a jack, queen or king in its frame, and some of the lower.
void paintCourt(const Drawing& drawing, int rank, Suit suit);

/// By how much the line on which the halves meet falls to the right, in a picture of that size.
double courtFall(PixelSize size);

} // namespace tumble
