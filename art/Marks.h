#pragma once

#include "art/Symbols.h"

#include <QPainter>

namespace tumble {

// The card's own coordinates, in which everything is drawn: one unit is one pixel of the smallest rendition.
inline constexpr double cardWidth = 81;
inline constexpr double cardHeight = 126;

/// The box in whole pixels that a box of the painter's coordinates comes closest to.
QRect fitted(const QPainter& painter, const QRectF& box);

/// Paints a letter or digit of the index into a box of pixels.
void paintGlyph(QPainter& painter, char character, const QRect& pixels, QRgb colour);

/// Paints a suit's symbol into a box of pixels.
void paintSuit(QPainter& painter, Suit suit, const QRect& pixels);

/// Paints rank and suit in the upper left corner. The rank is 1 for the ace to 13 for the king.
void paintIndex(QPainter& painter, int rank, Suit suit);

/// Gives the picture of a card below its middle what it has above, turned by half. The line between them passes
/// through the middle and falls to the right by that many pixels in each.
void repeatUpsideDown(QImage& image, double fall);

} // namespace tumble
