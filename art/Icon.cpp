#include "art/Icon.h"

#include "art/SuitSymbols.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace tumble::art {

namespace {

constexpr double suitWidth = 14;

// The suits of the quadrants, row by row.
constexpr std::array suits = {Suit::Hearts, Suit::Clubs, Suit::Spades, Suit::Diamonds};

/// The pixels of a quadrant's suit in an icon of that size. All suits are equally far from the edges next to them.
PixelRect suitPixels(std::size_t quadrant, PixelSize icon) {
    const auto length = [](int side) { return static_cast<int>(std::lround(suitWidth * side / iconWidth)); };
    const auto first = [&](bool isSecond, int side) {
        const int margin = side / iconWidth;
        return isSecond ? side - margin - length(side) : margin;
    };
    const PixelSize size{length(icon.width), length(icon.height)};
    return size.at({first(quadrant % 2 == 1, icon.width), first(quadrant / 2 == 1, icon.height)});
}

} // namespace

std::vector<Shape> iconShapes() {
    std::vector<Shape> shapes;
    for (std::size_t quadrant = 0; quadrant < suits.size(); ++quadrant) {
        const Box box = toBox(suitPixels(quadrant, {iconWidth, iconWidth}));
        shapes.push_back({suitSymbol(suits.at(quadrant), box), suitColour(suits.at(quadrant))});
    }
    return shapes;
}

void drawIcon(Canvas& canvas, int margin) {
    const PixelSize size = canvas.bounds().inset(margin, margin).size();
    for (std::size_t quadrant = 0; quadrant < suits.size(); ++quadrant) {
        const PixelRect pixels = suitPixels(quadrant, size);
        paintSuit(canvas, suits.at(quadrant), pixels.size().at({pixels.left + margin, pixels.top + margin}));
    }
}

} // namespace tumble::art
