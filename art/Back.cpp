#include "art/Back.h"

#include "art/Marks.h"
#include "art/Outline.h"

#include <algorithm>
#include <array>

namespace tumble {

namespace {

// The card is 5 by 8 tiles and a margin all round.
constexpr int columns = 5;
constexpr int rows = 8;
constexpr double tile = 15;
constexpr double margin = 3;
static_assert(columns * tile + 2 * margin == cardWidth && rows * tile + 2 * margin == cardHeight);

struct Colouring {
    QRgb ground;
    QRgb flower;
    QRgb knot;
};

constexpr std::array<Colouring, 4> colourings = {{
    {qRgb(192, 192, 255), qRgb(0, 0, 255), qRgb(255, 255, 0)},
    {qRgb(255, 255, 128), qRgb(128, 255, 255), qRgb(0, 255, 0)},
    {qRgb(255, 128, 64), qRgb(255, 0, 128), qRgb(128, 64, 0)},
    {qRgb(0, 255, 128), qRgb(128, 128, 0), qRgb(0, 128, 0)},
}};

// The slanting edges run between the middles of the pixels of the smallest rendition, so that they fall evenly.

/// A flower of four petals with a leaf between each two, in the middle of its tile.
QPainterPath flower() {
    const QPainterPath petal = completed(outline("M0 -1.5 L0.5 -1.5 L0.5 -2 L2.5 -4 L2.5 -5 L1 -6.5 L0 -6.5"));
    const QPainterPath leaf = outline("M3.5 3.5 L5.5 3.5 L5.5 5.5 L3.5 5.5 Z");
    QPainterPath path;
    for (int turn = 0; turn < 4; ++turn) {
        path.addPath(QTransform().rotate(90.0 * turn).map(petal));
        path.addPath(QTransform().rotate(90.0 * turn).map(leaf));
    }
    return path;
}

/// The heart of a flower.
QPainterPath heart() {
    return outline("M0 -1.5 L1.5 0 L0 1.5 L-1.5 0 Z");
}

/// A knot where four tiles meet.
QPainterPath knot() {
    return outline("M-0.5 -2 L0.5 -2 L2 -0.5 L2 0.5 L0.5 2 L-0.5 2 L-2 0.5 L-2 -0.5 Z");
}

/// Copies the upper left quarter to the others, so that neither a mirror nor a half turn can tell the backs apart.
void unfold(QImage& image) {
    const int lastX = image.width() - 1;
    const int lastY = image.height() - 1;
    for (int y = 0; y <= lastY; ++y) {
        for (int x = 0; x <= lastX; ++x) {
            image.setPixel(x, y, image.pixel(std::min(x, lastX - x), std::min(y, lastY - y)));
        }
    }
}

} // namespace

QImage drawBack(int colouring, QSize size) {
    const Colouring& colours = colourings.at(static_cast<std::size_t>(colouring));
    QImage image(size, QImage::Format_RGB32);
    image.fill(colours.ground);
    QPainter painter(&image);
    painter.scale(size.width() / cardWidth, size.height() / cardHeight);
    painter.translate(margin, margin);
    for (int row = 0; row <= rows; ++row) {
        for (int column = 0; column <= columns; ++column) {
            const QPointF corner(column * tile, row * tile);
            painter.fillPath(knot().translated(corner), QColor(colours.knot));
            if (row < rows && column < columns) {
                const QPointF middle = corner + QPointF(tile / 2, tile / 2);
                painter.fillPath(flower().translated(middle), QColor(colours.flower));
                painter.fillPath(heart().translated(middle), QColor(colours.knot));
            }
        }
    }
    painter.end();
    unfold(image);
    return image;
}

std::vector<QRgb> backColours(int colouring) {
    const Colouring& colours = colourings.at(static_cast<std::size_t>(colouring));
    return {colours.ground, colours.flower, colours.knot};
}

} // namespace tumble
