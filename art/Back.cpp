#include "art/Back.h"

#include "art/Marks.h"
#include "art/Outline.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tumble {

namespace {

// The card is 5 by 8 tiles and a margin all round.
constexpr int columns = 5;
constexpr int rows = 8;
constexpr int tile = 15;
constexpr double knotWidth = 4;
constexpr double margin = 3;

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

// Each motif has its middle at the origin. The slanting edges run between the middles of the pixels of the smallest
// rendition, so that they fall evenly.

/// A flower of four petals with a leaf between each two.
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

/// Copies the upper left quarter to the others. In a back, neither a mirror nor a half turn then shows.
void unfold(QImage& image) {
    const int width = image.width();
    const int height = image.height();
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        if (y >= (height + 1) / 2) {
            std::copy_n(reinterpret_cast<const QRgb*>(image.constScanLine(height - 1 - y)), width, line);
        }
        for (int x = (width + 1) / 2; x < width; ++x) {
            line[x] = line[width - 1 - x];
        }
    }
}

/// How many pixels a tile takes of a side of the card. A strip of an odd number of tiles has a tile in the middle of
/// the card, which takes an odd number of pixels; on an even side the middle one shows twice.
int pitch(int side, int tiles, double units) {
    const int least = static_cast<int>(std::lround(margin * side / units));
    const bool hasMiddle = tiles % 2 != 0;
    const int fitting = std::max(1, ((hasMiddle ? (side - 1) / 2 * 2 + 1 : side) - 2 * least) / tiles);
    return hasMiddle ? (fitting - 1) / 2 * 2 + 1 : fitting;
}

struct Ink {
    QPainterPath shape;
    QRgb colour;
};

/// A motif on a transparent ground, for tiles of a size in pixels. It is smoothed where the tiles are not those for
/// which its pixels were chosen.
QImage motif(std::initializer_list<Ink> inks, QSize size, QSize tilePixels) {
    QImage image(size.expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, tilePixels != QSize(tile, tile));
    painter.translate(image.width() / 2.0, image.height() / 2.0);
    painter.scale(tilePixels.width() / double{tile}, tilePixels.height() / double{tile});
    for (const Ink& ink : inks) {
        painter.fillPath(ink.shape, QColor(ink.colour));
    }
    painter.end();
    unfold(image);
    return image;
}

} // namespace

QImage drawBack(int colouring, QSize size) {
    const Colouring& colours = colourings.at(static_cast<std::size_t>(colouring));
    const QSize step(pitch(size.width(), columns, cardWidth), pitch(size.height(), rows, cardHeight));
    const QSize knotHalf(static_cast<int>(std::ceil(step.width() * knotWidth / tile / 2)),
                         static_cast<int>(std::ceil(step.height() * knotWidth / tile / 2)));
    const QImage flowers = motif({{flower(), colours.flower}, {heart(), colours.knot}}, step, step);
    const QImage knots = motif({{knot(), colours.knot}}, knotHalf * 2, step);
    QImage image(size, QImage::Format_RGB32);
    image.fill(colours.ground);
    QPainter painter(&image);
    const QSize rest = size - QSize(step.width() * columns, step.height() * rows);
    painter.translate(QPoint(rest.width() / 2, rest.height() / 2));
    for (int row = 0; row <= rows / 2; ++row) {
        for (int column = 0; column <= columns / 2; ++column) {
            const QPoint corner(column * step.width(), row * step.height());
            painter.drawImage(corner, flowers);
            painter.drawImage(corner - QPoint(knotHalf.width(), knotHalf.height()), knots);
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
