#include "art/Glyphs.h"

#include "art/Hinting.h"
#include "art/PathData.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tumble::art {

namespace {

struct DesignedGlyph {
    char character;
    PathData centreLine;
};

constexpr GlyphMetrics designed{.width = 8, .height = 13, .strokeWidth = 2};

constexpr std::array<DesignedGlyph, 16> font = {{
    {'A', "M0 16 L4 0.6 L8 16 M2 9 L6 9"},
    {'2', "M1 4.6 C1 2.2 2.1 1 4 1 C5.9 1 7 2.2 7 4 C7 7 1.5 8.4 1 12 L8 12"},
    {'3', "M0.6 1 L6.4 1 L3.5 5.4 C5.9 5.4 7 6.7 7 8.7 C7 10.8 5.8 12 4 12 C2.3 12 1.2 11.2 0.8 9.4"},
    {'4', "M6 13 L6 1.6 L1.2 9 L8 9"},
    {'5', "M7.4 1 L2 1 L1.6 6.6 C2.2 5.8 3 5.4 4 5.4 C5.9 5.4 7 6.6 7 8.6 C7 10.8 5.8 12 4 12 "
          "C2.3 12 1.2 11.2 0.8 9.4"},
    {'6', "M6 -1.4 L2.1 5.2 C1.3 6.6 1 7.4 1 8.6 C1 10.8 2.1 12 4 12 C5.9 12 7 10.8 7 8.6 C7 6.4 5.9 5.4 4.2 5.4 "
          "C3 5.4 2.2 5.8 1.6 6.6"},
    {'7', "M0 1 L6.9 1 C4.6 4.2 3.4 8 3.2 14"},
    {'8', "M4 6.2 C2.4 6.2 1.4 5.2 1.4 3.6 C1.4 1.9 2.4 1 4 1 C5.6 1 6.6 1.9 6.6 3.6 C6.6 5.2 5.6 6.2 4 6.2 "
          "C2.1 6.2 1 7.2 1 9.1 C1 11 2.1 12 4 12 C5.9 12 7 11 7 9.1 C7 7.2 5.9 6.2 4 6.2 Z"},
    {'9', "M2 14.4 L5.9 7.8 C6.7 6.4 7 5.6 7 4.4 C7 2.2 5.9 1 4 1 C2.1 1 1 2.2 1 4.4 C1 6.6 2.1 7.6 3.8 7.6 "
          "C5 7.6 5.8 7.2 6.4 6.4"},
    {'0', "M1 0 L1 13 M5.5 1 C4.5 1 4 1.6 4 3 L4 10 C4 11.4 4.5 12 5.5 12 C6.5 12 7 11.4 7 10 L7 3 "
          "C7 1.6 6.5 1 5.5 1 Z"},
    {'J', "M3 1 L8 1 M6 1 L6 9 C6 11 5.2 12 3.6 12 C2 12 1 11 1 9 L1 8.4"},
    {'Q', "M4 1 C2 1 1 2.4 1 5 L1 8 C1 10.6 2 12 4 12 C6 12 7 10.6 7 8 L7 5 C7 2.4 6 1 4 1 Z M3.6 8 L8.6 14"},
    {'O', "M4 1 C2 1 1 2.4 1 5 L1 8 C1 10.6 2 12 4 12 C6 12 7 10.6 7 8 L7 5 C7 2.4 6 1 4 1 Z"},
    {'K', "M1 0 L1 13 M7.8 -1 L1 8 M3.4 5 L7.6 14"},
    {'E', "M8 1 L1 1 L1 12 L8 12 M1 6.5 L6.6 6.5"},
    {'R', "M1 13 L1 1 L4 1 C6 1 7 2.2 7 4 C7 5.8 6 7 4 7 L1 7 M4 7 L7.6 14"},
}};

} // namespace

Glyph glyph(char character, PixelSize size) {
    // The strokes and gaps of the ten take up its whole width; strokes that are rounded up would not fit.
    const double exactStroke = size.width * designed.strokeWidth / designed.width;
    const int stroke = std::max(1, static_cast<int>(character == '0' ? exactStroke : std::round(exactStroke)));
    const auto* found =
        std::find_if(font.begin(), font.end(), [character](const auto& glyph) { return glyph.character == character; });
    const GlyphMetrics pixels{static_cast<double>(size.width), static_cast<double>(size.height),
                              static_cast<double>(stroke)};
    return {hinted(found->centreLine.path(), designed, pixels), stroke};
}

void paintGlyph(Canvas& canvas, char character, const PixelRect& pixels, Colour colour) {
    const auto& [centreLine, strokeWidth] = glyph(character, pixels.size());
    const Pen pen{colour, static_cast<double>(strokeWidth), LineCap::Flat};
    canvas.clip(pixels);
    canvas.stroke(centreLine, Transform().moved(toBox(pixels).corner), pen);
    canvas.clip(canvas.bounds());
}

} // namespace tumble::art
