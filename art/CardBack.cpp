#include "art/CardBack.h"

#include "art/Bitmap.h"
#include "art/Drawing.h"
#include "art/PathData.h"
#include "art/Symmetry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <memory>

namespace tumble::art {

namespace {

// The card has 5 by 8 tiles and a margin all round. Lengths are in card units.
constexpr int columns = 5;
constexpr int rows = 8;
constexpr int tile = 15;
constexpr double knotWidth = 4;
constexpr double margin = 3;

// The ground and the colours of the flower and the knot.
constexpr std::array<std::array<Colour, 3>, 4> colourings = {{
    {rgb(192, 192, 255), rgb(0, 0, 255), rgb(255, 255, 0)},
    {rgb(255, 255, 128), rgb(128, 255, 255), rgb(0, 255, 0)},
    {rgb(255, 128, 64), rgb(255, 0, 128), rgb(128, 64, 0)},
    {rgb(0, 255, 128), rgb(128, 128, 0), rgb(0, 128, 0)},
}};

/// A part of a motif in one colour: its shape about the motif's centre, and its mark in the motif's bitmap.
struct MotifShape {
    PathData path;
    char mark;
    Colour colour;
};

// Only the upper left quarter of a motif is painted; the others mirror it.
constexpr PathData petals =
    "M-0.5 -1.5 L0.5 -1.5 L0.5 -2 L2.5 -4 L2.5 -5 L1 -6.5 L-1 -6.5 L-2.5 -5 L-2.5 -4 L-0.5 -2 Z "
    "M-1.5 -0.5 L-2 -0.5 L-4 -2.5 L-5 -2.5 L-6.5 -1 L-6.5 1 L-5 2.5 L-4 2.5 L-2 0.5 L-1.5 0.5 Z "
    "M-5.5 -5.5 L-3.5 -5.5 L-3.5 -3.5 L-5.5 -3.5 Z";
constexpr PathData flowerCentre = "M0 -1.5 L1.5 0 L0 1.5 L-1.5 0 Z";
constexpr PathData knot = "M-0.5 -2 L0.5 -2 L2 -0.5 L2 0.5 L0.5 2 L-0.5 2 L-2 0.5 L-2 -0.5 Z"; // where four tiles meet

constexpr Bitmap flowerBitmap{"........"
                              "......##"
                              "..##.###"
                              "..##.###"
                              "......##"
                              "..##...#"
                              ".####..o"
                              ".#####oo",
                              8};
constexpr Bitmap knotBitmap{".o"
                            "oo",
                            2};

/// How many pixels of a side of the card a tile takes. An odd number of tiles has one in the middle of the card, which
/// takes an odd number of pixels; on an even side its middle column appears twice.
int tilePitch(int side, int tiles, double units) {
    const int least = static_cast<int>(std::lround(margin * side / units));
    const bool hasMiddle = tiles % 2 != 0;
    const int fitting = std::max(1, ((hasMiddle ? (side - 1) / 2 * 2 + 1 : side) - 2 * least) / tiles);
    return hasMiddle ? (fitting - 1) / 2 * 2 + 1 : fitting;
}

/// A motif on a transparent ground, for tiles of that pitch. At the designed size it is painted from the bitmap.
std::unique_ptr<Canvas> motif(const Canvas& like, std::initializer_list<MotifShape> shapes, const Bitmap& bitmap,
                              PixelSize size, PixelSize pitch) {
    auto image = like.createSimilar({std::max(1, size.width), std::max(1, size.height)}, {});
    const PixelRect quarter = upperLeftQuarter(*image);
    const Transform toPixels = Transform()
                                   .moved(toBox(image->bounds()).centre())
                                   .scaled(pitch.width / double{tile}, pitch.height / double{tile});
    image->clip(quarter);
    for (const auto& [path, mark, colour] : shapes) {
        if (pitch == PixelSize{tile, tile}) {
            paintBitmap(*image, bitmap, mark, quarter, colour);
        } else {
            image->fill(path.path(), toPixels, colour);
        }
    }
    image->clip(image->bounds());
    mirrorQuarter(*image);
    return image;
}

} // namespace

void drawBack(int colouring, Canvas& canvas) {
    const auto [width, height] = canvas.size();
    const auto& [ground, flowerColour, knotColour] = colourings.at(static_cast<std::size_t>(colouring));
    const PixelSize pitch{tilePitch(width, columns, cardSize.width), tilePitch(height, rows, cardSize.height)};
    const PixelSize knotHalf{static_cast<int>(std::ceil(pitch.width * knotWidth / tile / 2)),
                             static_cast<int>(std::ceil(pitch.height * knotWidth / tile / 2))};
    const auto flowers =
        motif(canvas, {{petals, '#', flowerColour}, {flowerCentre, 'o', knotColour}}, flowerBitmap, pitch, pitch);
    const auto knots =
        motif(canvas, {{knot, 'o', knotColour}}, knotBitmap, {knotHalf.width * 2, knotHalf.height * 2}, pitch);
    const PixelPoint first{(width - pitch.width * columns) / 2, (height - pitch.height * rows) / 2};
    canvas.fill(canvas.bounds(), ground);
    for (int row = 0; row <= rows / 2; ++row) {
        for (int column = 0; column <= columns / 2; ++column) {
            const PixelPoint corner{first.x + column * pitch.width, first.y + row * pitch.height};
            canvas.draw(*flowers, flowers->bounds(), corner);
            canvas.draw(*knots, knots->bounds(), {corner.x - knotHalf.width, corner.y - knotHalf.height});
        }
    }
    mirrorQuarter(canvas);
}

std::vector<Colour> backPalette(int colouring) {
    const auto& colours = colourings.at(static_cast<std::size_t>(colouring));
    return {colours.begin(), colours.end()};
}

} // namespace tumble::art
