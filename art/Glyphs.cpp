#include "art/Glyphs.h"

#include "art/Outline.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace tumble::art {

namespace {

// The glyphs are designed in a box of this size, for a pen of this width.
constexpr double designWidth = 8;
constexpr double designHeight = 13;
constexpr double designPen = 2;

Outline glyphLine(char character) {
    switch (character) {
    case 'A':
        return "M0 16 L4 0.6 L8 16 M2 9 L6 9";
    case '2':
        return "M1 4.6 C1 2.2 2.1 1 4 1 C5.9 1 7 2.2 7 4 C7 7 1.5 8.4 1 12 L8 12";
    case '3':
        return "M0.6 1 L6.4 1 L3.5 5.4 C5.9 5.4 7 6.7 7 8.7 C7 10.8 5.8 12 4 12 C2.3 12 1.2 11.2 0.8 9.4";
    case '4':
        return "M6 13 L6 1.6 L1.2 9 L8 9";
    case '5':
        return "M7.4 1 L2 1 L1.6 6.6 C2.2 5.8 3 5.4 4 5.4 C5.9 5.4 7 6.6 7 8.6 C7 10.8 5.8 12 4 12 C2.3 12 1.2 11.2 "
               "0.8 9.4";
    case '6':
        return "M6 -1.4 L2.1 5.2 C1.3 6.6 1 7.4 1 8.6 C1 10.8 2.1 12 4 12 C5.9 12 7 10.8 7 8.6 C7 6.4 5.9 5.4 4.2 5.4 "
               "C3 5.4 2.2 5.8 1.6 6.6";
    case '7':
        return "M0 1 L6.9 1 C4.6 4.2 3.4 8 3.2 14";
    case '8':
        return "M4 6.2 C2.4 6.2 1.4 5.2 1.4 3.6 C1.4 1.9 2.4 1 4 1 C5.6 1 6.6 1.9 6.6 3.6 C6.6 5.2 5.6 6.2 4 6.2 "
               "C2.1 6.2 1 7.2 1 9.1 C1 11 2.1 12 4 12 C5.9 12 7 11 7 9.1 C7 7.2 5.9 6.2 4 6.2 Z";
    case '9':
        return "M2 14.4 L5.9 7.8 C6.7 6.4 7 5.6 7 4.4 C7 2.2 5.9 1 4 1 C2.1 1 1 2.2 1 4.4 C1 6.6 2.1 7.6 3.8 7.6 C5 "
               "7.6 5.8 7.2 6.4 6.4";
    case '0':
        return "M1 0 L1 13 M5.5 1 C4.5 1 4 1.6 4 3 L4 10 C4 11.4 4.5 12 5.5 12 C6.5 12 7 11.4 7 10 L7 3 "
               "C7 1.6 6.5 1 5.5 1 Z";
    case 'J':
        return "M3 1 L8 1 M6 1 L6 9 C6 11 5.2 12 3.6 12 C2 12 1 11 1 9 L1 8.4";
    case 'Q':
        return "M4 1 C2 1 1 2.4 1 5 L1 8 C1 10.6 2 12 4 12 C6 12 7 10.6 7 8 L7 5 C7 2.4 6 1 4 1 Z M3.6 8 L8.6 14";
    case 'O':
        return "M4 1 C2 1 1 2.4 1 5 L1 8 C1 10.6 2 12 4 12 C6 12 7 10.6 7 8 L7 5 C7 2.4 6 1 4 1 Z";
    case 'K':
        return "M1 0 L1 13 M7.8 -1 L1 8 M3.4 5 L7.6 14";
    case 'E':
        return "M8 1 L1 1 L1 12 L8 12 M1 6.5 L6.6 6.5";
    case 'R':
        return "M1 13 L1 1 L4 1 C6 1 7 2.2 7 4 C7 5.8 6 7 4 7 L1 7 M4 7 L7.6 14";
    default:
        return "";
    }
}

/// Takes coordinates of the design to pixels: the strokes that it is told of get their edges on whole pixels, and what
/// lies between them moves along.
class Fit {
public:
    Fit(double designLength, int length, int pen) : scale_(length / designLength), pen_(pen) {
        places_ = {{0, 0}, {designLength, length}};
        keep(designPen / 2, pen / 2.0);
        keep(designLength - designPen / 2, length - pen / 2.0);
    }

    void stroke(double middle) {
        const double edge = (*this)(middle)-pen_ / 2.0;
        keep(middle, std::ceil(edge - 0.5) + pen_ / 2.0);
    }

    double operator()(double place) const {
        const auto next = places_.upper_bound(place);
        if (next == places_.begin() || next == places_.end()) {
            const auto edge = next == places_.begin() ? next : std::prev(next);
            return edge->second + (place - edge->first) * scale_;
        }
        const auto last = std::prev(next);
        return last->second + (place - last->first) * (next->second - last->second) / (next->first - last->first);
    }

private:
    void keep(double middle, double pixels) { places_.try_emplace(middle, pixels); }

    double scale_;
    int pen_;
    std::map<double, double> places_;
};

/// Tells the fits of the upright and level strokes: straight ones, and the outermost places of the curves.
void fitStrokes(const Path& design, Fit& across, Fit& down) {
    Vec2 last;
    for (const auto& [verb, to, bends] : design.steps()) {
        const Vec2 from = verb == Path::Verb::Curve ? bends[1] : last;
        if (verb == Path::Verb::Line || verb == Path::Verb::Curve) {
            if (from.x == to.x) {
                across.stroke(to.x);
            }
            if (from.y == to.y) {
                down.stroke(to.y);
            }
        }
        last = to;
    }
}

} // namespace

Glyph glyph(char character, PixelSize size) {
    // Pen and gaps of the ten take the whole width, so that nothing is left for rounding up.
    const double exactPen = size.width * designPen / designWidth;
    const int pen = std::max(1, static_cast<int>(character == '0' ? exactPen : std::round(exactPen)));
    const Path design = outline(glyphLine(character));
    Fit across(designWidth, size.width, pen);
    Fit down(designHeight, size.height, pen);
    fitStrokes(design, across, down);
    return {design.mapped(across, down), pen};
}

} // namespace tumble::art
