#include "art/Marks.h"
#include "art/Pictures.h"

namespace tumble {

namespace {

constexpr double iconWidth = 32; // and height, in the icon's own coordinates

} // namespace

QImage drawIcon(QSize size) {
    QImage icon(size, QImage::Format_RGB32);
    icon.fill(white);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / iconWidth, size.height() / iconWidth);
    paintSuit(painter, Suit::Hearts, QRectF(1, 2, 14, 13));
    paintSuit(painter, Suit::Clubs, QRectF(17, 1, 14, 14));
    paintSuit(painter, Suit::Spades, QRectF(1, 17, 14, 14));
    paintSuit(painter, Suit::Diamonds, QRectF(17, 17, 14, 14));
    return icon;
}

std::vector<QRgb> iconColours() {
    constexpr std::size_t tableSize = 16;
    std::vector<QRgb> colours = suitColours();
    colours.resize(tableSize, black);
    return colours;
}

} // namespace tumble
