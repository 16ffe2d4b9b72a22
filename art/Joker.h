#pragma once

#include <QPainter>

namespace tumble {

/// Paints the jester and the joker's mark in the corners.
void paintJoker(QPainter& painter);

} // namespace tumble
