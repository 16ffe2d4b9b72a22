#pragma once

#include "art/Ink.h"

#include <QPainterPath>
#include <QRectF>

namespace tumble {

enum class Suit { Clubs, Diamonds, Hearts, Spades };
inline constexpr int suitCount = 4;

/// Red for diamonds and hearts, black for clubs and spades.
QRgb suitColour(Suit suit);

/// A symbol for any size, or a sturdy one that is clear when it is only a few pixels wide.
enum class Weight { Regular, Sturdy };

/// The symbol of a suit stretched into a box, which the diamond does not quite fill.
QPainterPath suitSymbol(Suit suit, const QRectF& box, Weight weight);

/// The box that the letters and digits of the index fill, and the width of the strokes that draw them, in card units.
inline constexpr QRectF glyphBox(0, 0, 8, 13);
inline constexpr double glyphStem = 2;

/// The middle line of the strokes of a letter of "AJQKOER", a digit from 2 to 9 or the ten, written '0'.
/// Strokes may run over the edge of the glyph box, where they are cut straight.
QPainterPath glyph(char character);

/// A star of five points stretched into a box.
QPainterPath star(const QRectF& box);

} // namespace tumble
