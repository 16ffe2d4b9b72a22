#pragma once

#include "art/Drawing.h"
#include "art/SuitSymbols.h"

namespace tumble::art {

/// The rank of the jacks; queens and kings follow.
inline constexpr int firstCourtRank = 11;

/// Paints frame, figure and pip of the upper half of a jack, queen or king. Some of the lower half is painted, too.
void paintCourtHalf(const Drawing& drawing, int rank, Suit suit);

/// The slope of the line between the halves of a court card, in a picture of that size: how many pixels it falls for
/// each pixel to the right.
double courtDividerSlope(PixelSize size);

} // namespace tumble::art
