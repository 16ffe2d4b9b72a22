#pragma once

#include "art/Symbols.h"

#include <QPainter>

namespace tumble {

// The card's own coordinates, in which everything is drawn: one unit is one pixel of the smallest rendition.
inline constexpr double cardWidth = 81;
inline constexpr double cardHeight = 126;

/// Turns the card by half, so that what is painted next stands upside down.
void turnCard(QPainter& painter);

/// A box moved and stretched so that its edges fall on whole pixels of the painter.
QRectF snapped(const QPainter& painter, const QRectF& box);

/// Paints a letter or digit of the index into a box, fitted to the pixels.
void paintGlyph(QPainter& painter, char character, const QRectF& box, QRgb colour);

/// Paints a suit's symbol into a box, fitted to the pixels.
void paintSuit(QPainter& painter, Suit suit, const QRectF& box);

/// Paints rank and suit in two corners. The rank is 1 for the ace to 13 for the king.
void paintIndex(QPainter& painter, int rank, Suit suit);

} // namespace tumble
