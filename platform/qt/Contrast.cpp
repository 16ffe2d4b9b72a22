#include "platform/qt/Contrast.h"

#include <algorithm>
#include <cmath>

namespace tumble {

namespace {

constexpr double leastContrast = 3;
constexpr int steps = 20;

// Relative luminance and contrast ratio as WCAG defines them.
double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

QColor withContrast(const QColor& colour, const QPalette& palette) {
    const QColor text = palette.color(QPalette::WindowText);
    QColor line = colour;
    const auto lostOn = [&](QPalette::ColorRole ground) {
        return contrast(line, palette.color(ground)) < leastContrast;
    };
    for (int step = 1; step <= steps && (lostOn(QPalette::Window) || lostOn(QPalette::Button)); ++step) {
        const auto mixed = [&](int from, int to) { return from + (to - from) * step / steps; };
        line = QColor(mixed(colour.red(), text.red()), mixed(colour.green(), text.green()),
                      mixed(colour.blue(), text.blue()));
    }
    return line;
}

} // namespace tumble
