#pragma once

#include "art/Palette.h"
#include "platform/paint/Canvas.h"

#include <string_view>

namespace tumble::art {

enum class Suit { Clubs, Diamonds, Hearts, Spades };
inline constexpr int suitCount = 4;

/// Red for diamonds and hearts, black for clubs and spades.
Colour suitColour(Suit suit);

/// The symbol of a suit stretched into a box, which the diamond does not quite fill.
Path suitSymbol(Suit suit, const Box& box);

/// A sturdy one, of whole pixels, for a box of that size; its rows one after the other, empty for a larger box.
std::string_view tinySuit(Suit suit, PixelSize size);

/// A sturdy one that fills a box of few pixels, with the stem on whole pixels.
Path smallSuitSymbol(Suit suit, const PixelRect& pixels);

/// A star of five points stretched into a box.
Path star(const Box& box);

} // namespace tumble::art
