#pragma once

#include <QPainter>

namespace tumble {

/// Paints the joker's mark in the upper left corner.
void paintJokerMark(QPainter& painter);

/// Paints the jester, who juggles the suits.
void paintJester(QPainter& painter);

} // namespace tumble
