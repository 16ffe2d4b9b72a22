#include "art/Icon.h"

#include "art/Palette.h"
#include "art/SuitSymbols.h"

#include <array>
#include <cmath>

namespace tumble::art {

namespace {

constexpr double suitWidth = 14;

struct Quadrant {
    Suit suit;
    bool right;
    bool lower;
};

constexpr std::array<Quadrant, suitCount> quadrants = {{
    {Suit::Hearts, false, false},
    {Suit::Clubs, true, false},
    {Suit::Spades, false, true},
    {Suit::Diamonds, true, true},
}};

/// The pixels of a suit in an icon of that size. All suits are equally far from the edges next to them.
PixelRect suitPixels(const Quadrant& quadrant, PixelSize icon) {
    const auto length = [](int side) { return static_cast<int>(std::lround(suitWidth * side / iconWidth)); };
    const auto first = [&](bool isSecond, int side) {
        const int margin = side / iconWidth;
        return isSecond ? side - margin - length(side) : margin;
    };
    const PixelSize size{length(icon.width), length(icon.height)};
    return size.at({first(quadrant.right, icon.width), first(quadrant.lower, icon.height)});
}

} // namespace

std::vector<Shape> iconShapes() {
    std::vector<Shape> shapes;
    shapes.reserve(quadrants.size());
    for (const Quadrant& quadrant : quadrants) {
        const Box box = toBox(suitPixels(quadrant, {iconWidth, iconWidth}));
        shapes.push_back({suitSymbol(quadrant.suit, box), suitColour(quadrant.suit)});
    }
    return shapes;
}

void drawIcon(Canvas& canvas, int margin) {
    const PixelSize size = canvas.bounds().inset(margin, margin).size();
    for (const Quadrant& quadrant : quadrants) {
        const PixelRect pixels = suitPixels(quadrant, size);
        paintSuit(canvas, quadrant.suit, pixels.size().at({pixels.left + margin, pixels.top + margin}));
    }
}

std::vector<Colour> iconPalette() {
    constexpr std::size_t tableSize = 16;
    std::vector<Colour> colours = suitPalette();
    colours.resize(tableSize, black);
    return colours;
}

} // namespace tumble::art
