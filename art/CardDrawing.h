#pragma once

#include "art/Drawing.h"
#include "art/Symbols.h"

#include <string_view>

namespace tumble {

// The card's own coordinates, in which everything is drawn: one unit is one pixel of the smallest rendition.
inline constexpr double cardWidth = 81;
inline constexpr double cardHeight = 126;
inline constexpr Box wholeCard{{}, cardWidth, cardHeight};

/// The block of pixels that a box of the drawing's coordinates comes closest to.
PixelRect fitted(const Drawing& drawing, const Box& box);

/// Paints those pixels of a block that bear a mark in its rows.
void paintPixels(Canvas& canvas, std::string_view rows, char mark, const PixelRect& pixels, Colour colour);

/// Paints a letter or digit of the index into a block of pixels.
void paintGlyph(Canvas& canvas, char character, const PixelRect& pixels, Colour colour);

/// Paints a suit's symbol into a block of pixels.
void paintSuit(Canvas& canvas, Suit suit, const PixelRect& pixels);

/// Paints rank and suit in the upper left corner. The rank is 1 for the ace to 13 for the king.
void paintIndex(const Drawing& drawing, int rank, Suit suit);

/// Gives the picture of a card below its middle what it has above, turned by half. The line between them passes
/// through the middle and falls to the right by that many pixels in each.
void repeatUpsideDown(Canvas& canvas, double fall);

} // namespace tumble
