#pragma once

#include "art/Palette.h"
#include "platform/paint/Canvas.h"

namespace tumble::art {

enum class Suit { Clubs, Diamonds, Hearts, Spades };
inline constexpr int suitCount = 4;

/// Red for diamonds and hearts, black for clubs and spades.
Colour suitColour(Suit suit);

/// The symbol of a suit stretched into a box. The diamond leaves some space at the sides.
Path suitSymbol(Suit suit, const Box& box);

/// Paints a suit's symbol that fills a block of pixels: a bitmap or a sturdier shape where the block is small.
void paintSuit(Canvas& canvas, Suit suit, const PixelRect& pixels);

} // namespace tumble::art
