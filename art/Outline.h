#pragma once

#include <QPainterPath>

namespace tumble {

/// Reads an outline written as commands and numbers, with absolute coordinates:
/// M x y moves, L x y draws a line, Q cx cy x y and C cx cy dx dy x y draw curves, O x y r adds a circle, Z closes.
QPainterPath outline(const char* commands);

/// The mirror image of a path in the axis x = 0.
QPainterPath mirrored(const QPainterPath& path);

/// The closed shape of which the path is the right half: it begins and ends on the axis x = 0.
QPainterPath completed(const QPainterPath& half);

} // namespace tumble
