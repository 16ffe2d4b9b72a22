#pragma once

#include "art/Ink.h"

#include <QPainterPath>
#include <QRectF>

namespace tumble {

enum class Suit { Clubs, Diamonds, Hearts, Spades };
inline constexpr int suitCount = 4;

/// Red for diamonds and hearts, black for clubs and spades.
QRgb suitColour(Suit suit);

/// The symbol of a suit stretched into a box, which the diamond does not quite fill.
QPainterPath suitSymbol(Suit suit, const QRectF& box);

/// A sturdy one that fills a box of few pixels, with the stem on whole pixels.
QPainterPath smallSuitSymbol(Suit suit, const QRect& pixels);

/// A star of five points stretched into a box.
QPainterPath star(const QRectF& box);

} // namespace tumble
