#include "art/CardDrawing.h"

#include "art/Glyphs.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace tumble {

namespace {

// The index lies in the ten columns of pixels that a spread leaves to see, clear of the border and of the tenth.
constexpr std::string_view indexGlyphs = "A234567890JQK";
constexpr Box indexRankBox{{2, 4}, 8, 13};
constexpr Box indexSuitBox{{2, 20}, 8, 10};
constexpr int leastLeft = 2;

/// The width in pixels below which a suit's symbol is a small one.
constexpr int smallBelow = 14;

/// A box of the index in pixels: at no size does it touch the border of the card.
PixelRect indexBox(const Drawing& drawing, const Box& box) {
    const PixelRect pixels = fitted(drawing, box);
    return pixels.size().at({std::max(leastLeft, pixels.left), pixels.top});
}

} // namespace

PixelRect fitted(const Drawing& drawing, const Box& box) {
    const auto rounded = [](double pixels) { return static_cast<int>(std::lround(pixels)); };
    const Box exact = drawing.toPixels(box);
    const PixelSize size{std::max(1, rounded(exact.width)), std::max(1, rounded(exact.height))};
    return size.at({rounded(exact.corner.x), rounded(exact.corner.y)});
}

void paintPixels(Canvas& canvas, std::string_view rows, char mark, const PixelRect& pixels, Colour colour) {
    const int width = pixels.width();
    for (int i = 0; i < width * pixels.height(); ++i) {
        if (rows[static_cast<std::size_t>(i)] == mark) {
            canvas.fill(PixelSize{1, 1}.at({pixels.left + i % width, pixels.top + i / width}), colour);
        }
    }
}

void paintGlyph(Canvas& canvas, char character, const PixelRect& pixels, Colour colour) {
    const auto& [line, pen] = glyph(character, pixels.size());
    canvas.clip(pixels);
    canvas.stroke(line, Transform().moved(toBox(pixels).corner), {colour, static_cast<double>(pen), LineCap::Flat});
    canvas.clip(canvas.bounds());
}

void paintSuit(Canvas& canvas, Suit suit, const PixelRect& pixels) {
    if (const std::string_view rows = tinySuit(suit, pixels.size()); !rows.empty()) {
        paintPixels(canvas, rows, '#', pixels, suitColour(suit));
    } else {
        const bool isSmall = pixels.width() < smallBelow;
        canvas.fill(isSmall ? smallSuitSymbol(suit, pixels) : suitSymbol(suit, toBox(pixels)), {}, suitColour(suit));
    }
}

void paintIndex(const Drawing& drawing, int rank, Suit suit) {
    const char character = indexGlyphs.at(static_cast<std::size_t>(rank) - 1);
    paintGlyph(drawing.canvas, character, indexBox(drawing, indexRankBox), suitColour(suit));
    PixelRect suitPixels = indexBox(drawing, indexSuitBox);
    suitPixels.bottom = std::max(suitPixels.bottom, suitPixels.top + suitPixels.width() + 1);
    paintSuit(drawing.canvas, suit, suitPixels);
}

void repeatUpsideDown(Canvas& canvas, double fall) {
    const int width = canvas.size().width;
    const int height = canvas.size().height;
    const auto repeat = [&](const PixelRect& block) {
        const PixelPoint opposite{width - 1 - block.right, height - 1 - block.bottom};
        canvas.draw(canvas, block.size().at(opposite), block.corner(), Flip::Both);
    };
    for (int y = 0; y < height; ++y) {
        const auto isBelow = [&](int x) {
            const int right = 2 * x + 1 - width;
            const double below = 2 * y + 1 - height - fall * right;
            return below > 0 || (below == 0 && right > 0);
        };
        PixelRect row{.left = 0, .top = y, .right = width - 1, .bottom = y};
        while (!row.empty() && !isBelow(row.left)) {
            ++row.left;
        }
        while (!row.empty() && !isBelow(row.right)) {
            --row.right;
        }
        if (row.width() == width) {
            repeat({.left = 0, .top = y, .right = width - 1, .bottom = height - 1});
            return;
        }
        if (!row.empty()) {
            repeat(row);
        }
    }
}

} // namespace tumble
