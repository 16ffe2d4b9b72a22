#include "art/Back.h"

#include "art/CardDrawing.h"
#include "art/Outline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <memory>
#include <string_view>

namespace tumble::art {

namespace {

// The card is 5 by 8 tiles and a margin all round.
constexpr int columns = 5;
constexpr int rows = 8;
constexpr int tile = 15;
constexpr double knotWidth = 4;
constexpr double margin = 3;

struct Colouring {
    Colour ground;
    Colour flower;
    Colour knot;
};

constexpr std::array<Colouring, 4> colourings = {{
    {rgb(192, 192, 255), rgb(0, 0, 255), rgb(255, 255, 0)},
    {rgb(255, 255, 128), rgb(128, 255, 255), rgb(0, 255, 0)},
    {rgb(255, 128, 64), rgb(255, 0, 128), rgb(128, 64, 0)},
    {rgb(0, 255, 128), rgb(128, 128, 0), rgb(0, 128, 0)},
}};

/// A shape of a motif, whose middle is the origin, and its mark in the motif's pixels.
struct Ink {
    Outline shape;
    char mark;
    Colour colour;
};

/// Four petals with a leaf between each two.
constexpr Outline flower = "M-0.5 -1.5 L0.5 -1.5 L0.5 -2 L2.5 -4 L2.5 -5 L1 -6.5 L-1 -6.5 L-2.5 -5 L-2.5 -4 L-0.5 -2 Z "
                           "M-0.5 1.5 L-0.5 2 L-2.5 4 L-2.5 5 L-1 6.5 L1 6.5 L2.5 5 L2.5 4 L0.5 2 L0.5 1.5 Z "
                           "M-1.5 -0.5 L-2 -0.5 L-4 -2.5 L-5 -2.5 L-6.5 -1 L-6.5 1 L-5 2.5 L-4 2.5 L-2 0.5 L-1.5 0.5 Z "
                           "M1.5 -0.5 L1.5 0.5 L2 0.5 L4 2.5 L5 2.5 L6.5 1 L6.5 -1 L5 -2.5 L4 -2.5 L2 -0.5 Z "
                           "M3.5 3.5 L5.5 3.5 L5.5 5.5 L3.5 5.5 Z M-5.5 3.5 L-3.5 3.5 L-3.5 5.5 L-5.5 5.5 Z "
                           "M3.5 -5.5 L5.5 -5.5 L5.5 -3.5 L3.5 -3.5 Z M-5.5 -5.5 L-3.5 -5.5 L-3.5 -3.5 L-5.5 -3.5 Z";
constexpr Outline heart = "M0 -1.5 L1.5 0 L0 1.5 L-1.5 0 Z";
constexpr Outline knot = "M-0.5 -2 L0.5 -2 L2 -0.5 L2 0.5 L0.5 2 L-0.5 2 L-2 0.5 L-2 -0.5 Z"; // where four tiles meet

// The pixels of the upper left quarter of each motif, for tiles of the smallest rendition.
constexpr std::string_view flowerPixels = "........"
                                          "......##"
                                          "..##.###"
                                          "..##.###"
                                          "......##"
                                          "..##...#"
                                          ".####..o"
                                          ".#####oo";
constexpr std::string_view knotPixels = ".o"
                                        "oo";

PixelRect upperLeftQuarter(const Canvas& canvas) {
    return {.left = 0, .top = 0, .right = (canvas.size().width - 1) / 2, .bottom = (canvas.size().height - 1) / 2};
}

/// Copies the upper left quarter to the others. In a back, neither a mirror nor a half turn then shows.
void unfold(Canvas& canvas) {
    const auto [width, height] = canvas.size();
    PixelRect half = upperLeftQuarter(canvas);
    half.right = width / 2 - 1;
    canvas.draw(canvas, half, {(width + 1) / 2, 0}, Flip::Horizontal);
    canvas.draw(canvas, {.left = 0, .top = 0, .right = width - 1, .bottom = height / 2 - 1}, {0, (height + 1) / 2},
                Flip::Vertical);
}

/// How many pixels a tile takes of a side of the card. A strip of an odd number of tiles has a tile in the middle of
/// the card, which takes an odd number of pixels; on an even side the middle one shows twice.
int pitch(int side, int tiles, double units) {
    const int least = static_cast<int>(std::lround(margin * side / units));
    const bool hasMiddle = tiles % 2 != 0;
    const int fitting = std::max(1, ((hasMiddle ? (side - 1) / 2 * 2 + 1 : side) - 2 * least) / tiles);
    return hasMiddle ? (fitting - 1) / 2 * 2 + 1 : fitting;
}

/// A motif on a transparent ground, for tiles of a size in pixels: of whole pixels where the tiles are those for which
/// these were chosen.
std::unique_ptr<Canvas> motif(const Canvas& like, std::initializer_list<Ink> inks, std::string_view pixels,
                              PixelSize size, PixelSize tiles) {
    auto image = like.createSimilar({std::max(1, size.width), std::max(1, size.height)}, {});
    const PixelRect quarter = upperLeftQuarter(*image);
    const Transform toPixels = Transform()
                                   .moved(toBox(image->bounds()).centre())
                                   .scaled(tiles.width / double{tile}, tiles.height / double{tile});
    image->clip(quarter);
    for (const auto& [shape, mark, colour] : inks) {
        if (tiles == PixelSize{tile, tile}) {
            paintPixels(*image, pixels, mark, quarter, colour);
        } else {
            image->fill(shape.path(), toPixels, colour);
        }
    }
    image->clip(image->bounds());
    unfold(*image);
    return image;
}

} // namespace

void drawBack(int colouring, Canvas& canvas) {
    const auto [width, height] = canvas.size();
    const auto& [ground, flowerColour, knotColour] = colourings.at(static_cast<std::size_t>(colouring));
    const PixelSize step{pitch(width, columns, cardWidth), pitch(height, rows, cardHeight)};
    const PixelSize knotHalf{static_cast<int>(std::ceil(step.width * knotWidth / tile / 2)),
                             static_cast<int>(std::ceil(step.height * knotWidth / tile / 2))};
    const auto flowers =
        motif(canvas, {{flower, '#', flowerColour}, {heart, 'o', knotColour}}, flowerPixels, step, step);
    const auto knots =
        motif(canvas, {{knot, 'o', knotColour}}, knotPixels, {knotHalf.width * 2, knotHalf.height * 2}, step);
    const PixelPoint first{(width - step.width * columns) / 2, (height - step.height * rows) / 2};
    canvas.fill(canvas.bounds(), ground);
    for (int row = 0; row <= rows / 2; ++row) {
        for (int column = 0; column <= columns / 2; ++column) {
            const PixelPoint corner{first.x + column * step.width, first.y + row * step.height};
            canvas.draw(*flowers, flowers->bounds(), corner);
            canvas.draw(*knots, knots->bounds(), {corner.x - knotHalf.width, corner.y - knotHalf.height});
        }
    }
    unfold(canvas);
}

std::vector<Colour> backColours(int colouring) {
    const auto& [ground, flowerColour, knotColour] = colourings.at(static_cast<std::size_t>(colouring));
    return {ground, flowerColour, knotColour};
}

} // namespace tumble::art
