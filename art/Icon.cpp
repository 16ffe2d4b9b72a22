#include "art/Icon.h"

#include "art/CardDrawing.h"
#include "art/Pictures.h"

#include <array>
#include <cmath>
#include <utility>

namespace tumble::art {

namespace {

constexpr double boxWidth = 14;
constexpr std::array suits = {
    std::pair(Suit::Hearts, Vec2{1, 1}),
    std::pair(Suit::Clubs, Vec2{17, 1}),
    std::pair(Suit::Spades, Vec2{1, 17}),
    std::pair(Suit::Diamonds, Vec2{17, 17}),
};

int inPixels(double length, int side) {
    return static_cast<int>(std::lround(length * side / iconWidth));
}

/// Where a suit's box begins on a side of the icon; those of the second row or column are as far from its end.
int along(double place, int side) {
    const int margin = side / iconWidth;
    return place < iconWidth / 2.0 ? margin : side - margin - inPixels(boxWidth, side);
}

} // namespace

std::vector<Shape> iconShapes() {
    std::vector<Shape> shapes;
    shapes.reserve(suits.size());
    for (const auto& [suit, corner] : suits) {
        shapes.push_back({suitSymbol(suit, {corner, boxWidth, boxWidth}), suitColour(suit)});
    }
    return shapes;
}

void drawIcon(Canvas& canvas, int margin) {
    const int width = canvas.size().width - 2 * margin;
    const int height = canvas.size().height - 2 * margin;
    const PixelSize size{inPixels(boxWidth, width), inPixels(boxWidth, height)};
    for (const auto& [suit, corner] : suits) {
        paintSuit(canvas, suit, size.at({margin + along(corner.x, width), margin + along(corner.y, height)}));
    }
}

std::vector<Colour> iconColours() {
    constexpr std::size_t tableSize = 16;
    std::vector<Colour> colours = suitColours();
    colours.resize(tableSize, black);
    return colours;
}

} // namespace tumble::art
