#include "art/SuitSymbols.h"

#include "art/Bitmap.h"
#include "art/PathData.h"
#include "art/SuitBitmaps.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace tumble::art {

namespace {

// The shapes reach from -10 to 10 either way.

Path diamond(double halfWidth) {
    Path half = PathData("M0 -10 C2.6 -6.4 6 -3 10 0 C6 3 2.6 6.4 0 10").path();
    return completed(half.mapped(Transform::scaling(halfWidth / 10, 1)));
}

Path heart() {
    return completed(PathData("M0 -5.6 C0.9 -8.6 2.9 -10 5.2 -10 C8 -10 10 -7.8 10 -4.6 C10 0.6 3.4 3.8 0 10").path());
}

/// A club on its foot. The lobes have that radius; `lowerY` is the height of the centres of the lower two.
Path club(Path foot, double radius, double lowerY) {
    for (const Vec2 lobe : {Vec2{0, radius - 10}, Vec2{10 - radius, lowerY}, Vec2{radius - 10, lowerY}}) {
        foot.addCircle(lobe, radius);
    }
    return foot;
}

/// The foot of a club or spade.
Path foot() {
    return completed(PathData("M0 -3 L2.6 -0.6 L0.9 2.6 C1 6.6 2.2 9 4.6 10 L0 10").path());
}

Path spade() {
    Path spade = foot();
    spade.add(completed(PathData("M0 -10 C3 -4.4 10 -1.6 10 3 C10 5.6 8.2 7.2 5.9 7.2 C3.8 7.2 2 6.2 0 3.4").path()));
    return spade;
}

/// The foot of a club or spade in a box of few pixels: a stem of one to three pixels in the middle, and a base one
/// pixel high. Both lie on whole pixels.
Path smallFoot(PixelSize size) {
    const int width = size.width;
    const bool isEven = width % 2 == 0;
    const int stem = isEven ? 2 : width < 9 ? 1 : 3;
    const int base = stem + (isEven && width >= 10 ? 4 : 2);
    const double rise = 20.0 / size.height;
    Path path;
    path.addBox({{-10.0 * stem / width, -2}, 20.0 * stem / width, 12});
    path.addBox({{-10.0 * base / width, 10 - rise}, 20.0 * base / width, rise});
    return path;
}

/// A spade in a box of few pixels. Its blade ends one pixel above the base.
Path smallSpade(PixelSize size) {
    Path spade = smallFoot(size);
    const Path blade = completed(PathData("M0 -10 C1.4 -5 10 -1 10 4.4 C10 7 8.2 8 6 8 C3.8 8 2 7 0 5").path());
    const double length = 20 - 40.0 / size.height;
    spade.add(blade.mapped(Transform().moved({0, -10}).scaled(1, length / 18).moved({0, 10})));
    return spade;
}

/// The shape of a suit; for a box of few pixels, sturdier and with the stem on whole pixels.
Path shape(Suit suit, std::optional<PixelSize> few) {
    switch (suit) {
    case Suit::Clubs:
        return few ? club(smallFoot(*few), 4.2, 0.6) : club(foot(), 4.6, 1.7);
    case Suit::Diamonds:
        return diamond(few ? 10 : 8.4);
    case Suit::Hearts:
        return heart();
    case Suit::Spades:
        return few ? smallSpade(*few) : spade();
    }
    return {};
}

Path stretched(const Path& shape, const Box& box) {
    return shape.mapped(Transform().moved(box.centre()).scaled(box.width / 20, box.height / 20));
}

} // namespace

Colour suitColour(Suit suit) {
    return suit == Suit::Diamonds || suit == Suit::Hearts ? red : black;
}

Path suitSymbol(Suit suit, const Box& box) {
    return stretched(shape(suit, {}), box);
}

void paintSuit(Canvas& canvas, Suit suit, const PixelRect& pixels) {
    constexpr int leastWidth = 14; // of the usual shape
    const PixelSize size = pixels.size();
    const auto* bitmaps =
        std::find_if(suitBitmaps.begin(), suitBitmaps.end(), [size](const auto& each) { return each.size == size; });
    if (bitmaps != suitBitmaps.end()) {
        const std::size_t step = static_cast<std::size_t>(size.width) + 1;
        const Bitmap bitmap{bitmaps->text.substr(static_cast<std::size_t>(suit) * step), suitCount * step};
        paintBitmap(canvas, bitmap, '#', pixels, suitColour(suit));
    } else {
        const auto few = size.width < leastWidth ? std::optional(size) : std::nullopt;
        canvas.fill(stretched(shape(suit, few), toBox(pixels)), {}, suitColour(suit));
    }
}

} // namespace tumble::art
