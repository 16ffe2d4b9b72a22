#include "art/CornerIndex.h"

#include "art/Glyphs.h"
#include "art/PathData.h"

#include <algorithm>
#include <string_view>

namespace tumble::art {

namespace {

// A spread leaves ten columns of pixels uncovered. The index keeps clear of the first, the border, and of the tenth.
constexpr std::string_view rankGlyphs = "A234567890JQK";
constexpr Box rankBox{{2, 4}, 8, 13};
constexpr Box suitBox{{2, 20}, 8, 10};
constexpr Box starBox{{2, 4}, 8, 8};
constexpr Box letterBox{{3, 14}, 6, 8};
constexpr Box letterStep{{}, 1, 10};
constexpr int leastLeft = 2;

/// The right half of a five-pointed star, from -10 to 10 either way.
constexpr PathData halfStar = "M0 -10 L2.4 -3.1 L10 -3 L4 1.6 L6.2 9.4 L0 4.8";

/// A box of the index in pixels, moved to the right where it would touch the border.
PixelRect indexPixels(const Drawing& drawing, const Box& box) {
    const PixelRect pixels = snapped(drawing, box);
    return pixels.size().at({std::max(leastLeft, pixels.left), pixels.top});
}

} // namespace

void paintIndex(const Drawing& drawing, int rank, Suit suit) {
    const char character = rankGlyphs.at(static_cast<std::size_t>(rank) - 1);
    paintGlyph(drawing.canvas, character, indexPixels(drawing, rankBox), suitColour(suit));
    PixelRect suitPixels = indexPixels(drawing, suitBox);
    suitPixels.bottom = std::max(suitPixels.bottom, suitPixels.top + suitPixels.width() + 1);
    paintSuit(drawing.canvas, suit, suitPixels);
}

void paintJokerIndex(const Drawing& drawing) {
    const Box star = toBox(snapped(drawing, starBox));
    drawing.canvas.fill(completed(halfStar.path()),
                        Transform().moved(star.centre()).scaled(star.width / 20, star.height / 20), red);
    const PixelRect first = indexPixels(drawing, letterBox);
    PixelPoint corner = first.corner();
    for (const char letter : std::string_view("JOKER")) {
        paintGlyph(drawing.canvas, letter, first.size().at(corner), black);
        corner.y += snapped(drawing, letterStep).height();
    }
}

} // namespace tumble::art
