#include "art/Icon.h"

#include "art/Marks.h"
#include "art/Pictures.h"

#include <array>
#include <cmath>
#include <utility>

namespace tumble {

namespace {

constexpr double boxWidth = 14;
constexpr std::array suits = {
    std::pair(Suit::Hearts, QRectF(1, 1, boxWidth, boxWidth)),
    std::pair(Suit::Clubs, QRectF(17, 1, boxWidth, boxWidth)),
    std::pair(Suit::Spades, QRectF(1, 17, boxWidth, boxWidth)),
    std::pair(Suit::Diamonds, QRectF(17, 17, boxWidth, boxWidth)),
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
    for (const auto& [suit, box] : suits) {
        shapes.push_back({suitSymbol(suit, box), suitColour(suit)});
    }
    return shapes;
}

QImage drawIcon(QSize size, QColor ground) {
    QImage icon(size, QImage::Format_ARGB32);
    icon.fill(ground);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& [suit, box] : suits) {
        const QRect pixels(along(box.left(), size.width()), along(box.top(), size.height()),
                           inPixels(box.width(), size.width()), inPixels(box.height(), size.height()));
        paintSuit(painter, suit, pixels);
    }
    return icon;
}

std::vector<QRgb> iconColours() {
    constexpr std::size_t tableSize = 16;
    std::vector<QRgb> colours = suitColours();
    colours.resize(tableSize, black);
    return colours;
}

} // namespace tumble
