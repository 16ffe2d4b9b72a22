#pragma once

#include <QColor>
#include <QPainterPath>

#include <vector>

namespace tumble {

/// The width, and height, of the icon in its own coordinates.
inline constexpr int iconWidth = 32;

struct Shape {
    QPainterPath outline;
    QRgb colour;
};

/// What the icon consists of when it is large.
std::vector<Shape> iconShapes();

} // namespace tumble
