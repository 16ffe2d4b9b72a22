#include "platform/input/KeyboardCursor.h"

#include <cmath>

namespace tumble {

namespace {

// In unscaled pixels.
constexpr double halfSide = 13;
constexpr double radius = 9.5; // of the middle of the lines
constexpr double darkLine = 7;
constexpr double lightLine = 3;
constexpr double dotRadius = 2.5;

constexpr Colour dark = rgb(0, 0, 0);
constexpr Colour light = rgb(255, 255, 255);

} // namespace

PixelRect cursorPixels(const KeyboardCursor& cursor, PixelScale scale) {
    const int side = 2 * static_cast<int>(std::ceil(halfSide * scale.factor())) + 1;
    return PixelSize{side, side}.at({scale.pixel(cursor.at.x) - side / 2, scale.pixel(cursor.at.y) - side / 2});
}

void paintCursor(Canvas& canvas, bool holds, PixelScale scale) {
    const double middle = canvas.size().width / 2.0;
    const double unit = scale.factor();
    const Transform toPixels{{unit, 0}, {0, unit}, {middle, middle}};
    Path circle;
    circle.addCircle({}, radius);
    if (holds) {
        canvas.fill(circle, toPixels, dark);
    }
    canvas.stroke(circle, toPixels, {dark, darkLine});
    canvas.stroke(circle, toPixels, {light, lightLine});
    if (holds) {
        Path dot;
        dot.addCircle({}, dotRadius);
        canvas.fill(dot, toPixels, light);
    }
}

} // namespace tumble
