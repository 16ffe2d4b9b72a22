#include "art/Symbols.h"

#include "art/Outline.h"
#include "art/TinySuits.h"

#include <cstddef>

namespace tumble::art {

namespace {

/// A shape from -10 to 10 either way, stretched into a box.
Path stretched(const Path& shape, const Box& box) {
    return shape.mapped(Transform().moved(box.centre()).scaled(box.width / 20, box.height / 20));
}

Path diamond(double halfWidth) {
    Path half = outline("M0 -10 C2.6 -6.4 6 -3 10 0 C6 3 2.6 6.4 0 10");
    return completed(half.mapped(Transform::scaling(halfWidth / 10, 1)));
}

Path heart() {
    return completed(outline("M0 -5.6 C0.9 -8.6 2.9 -10 5.2 -10 C8 -10 10 -7.8 10 -4.6 C10 0.6 3.4 3.8 0 10"));
}

/// A club on its foot; the lobes have that radius, and the lower two their middles at that height.
Path club(Path foot, double radius, double shoulder) {
    for (const Vec2 lobe : {Vec2{0, radius - 10}, Vec2{10 - radius, shoulder}, Vec2{radius - 10, shoulder}}) {
        foot.addCircle(lobe, radius);
    }
    return foot;
}

/// The foot on which a club or spade stands.
Path foot() {
    return completed(outline("M0 -3 L2.6 -0.6 L0.9 2.6 C1 6.6 2.2 9 4.6 10 L0 10"));
}

Path spade() {
    Path spade = foot();
    spade.add(completed(outline("M0 -10 C3 -4.4 10 -1.6 10 3 C10 5.6 8.2 7.2 5.9 7.2 C3.8 7.2 2 6.2 0 3.4")));
    return spade;
}

/// The foot of a small club or spade: a stem of one to three pixels in the middle of the box, and a sole one high.
Path smallFoot(PixelSize size) {
    const int width = size.width;
    const bool isEven = width % 2 == 0;
    const int stem = isEven ? 2 : width < 9 ? 1 : 3;
    const int sole = stem + (isEven && width >= 10 ? 4 : 2);
    const double rise = 20.0 / size.height;
    Path path;
    path.addBox({{-10.0 * stem / width, -2}, 20.0 * stem / width, 12});
    path.addBox({{-10.0 * sole / width, 10 - rise}, 20.0 * sole / width, rise});
    return path;
}

/// A small spade, whose blade ends one pixel above the sole.
Path smallSpade(PixelSize size) {
    Path spade = smallFoot(size);
    const Path blade = completed(outline("M0 -10 C1.4 -5 10 -1 10 4.4 C10 7 8.2 8 6 8 C3.8 8 2 7 0 5"));
    const double length = 20 - 40.0 / size.height;
    spade.add(blade.mapped(Transform().moved({0, -10}).scaled(1, length / 18).moved({0, 10})));
    return spade;
}

} // namespace

Colour suitColour(Suit suit) {
    return suit == Suit::Diamonds || suit == Suit::Hearts ? red : black;
}

Path suitSymbol(Suit suit, const Box& box) {
    switch (suit) {
    case Suit::Clubs:
        return stretched(club(foot(), 4.6, 1.7), box);
    case Suit::Diamonds:
        return stretched(diamond(8.4), box);
    case Suit::Hearts:
        return stretched(heart(), box);
    case Suit::Spades:
        return stretched(spade(), box);
    }
    return {};
}

std::string_view tinySuit(Suit suit, PixelSize size) {
    for (const auto& [tinySize, rows] : tinySuits) {
        if (tinySize == size) {
            return rows.at(static_cast<std::size_t>(suit));
        }
    }
    return {};
}

Path smallSuitSymbol(Suit suit, const PixelRect& pixels) {
    const Box box = toBox(pixels);
    const PixelSize size = pixels.size();
    switch (suit) {
    case Suit::Clubs:
        return stretched(club(smallFoot(size), 4.2, 0.6), box);
    case Suit::Diamonds:
        return stretched(diamond(10), box);
    case Suit::Hearts:
        return stretched(heart(), box);
    case Suit::Spades:
        return stretched(smallSpade(size), box);
    }
    return {};
}

Path star(const Box& box) {
    return stretched(completed(outline("M0 -10 L2.4 -3.1 L10 -3 L4 1.6 L6.2 9.4 L0 4.8")), box);
}

} // namespace tumble::art
