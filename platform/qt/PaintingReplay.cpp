#include "platform/qt/PaintingReplay.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <variant>

namespace tumble {

namespace {

/// An item, the pixels that it covers, and those of them that are to be painted.
struct Shown {
    const PaintItem* item;
    PixelRect place;
    PixelRect visible;
};

/// Paints the operations of one item, as far as they are visible.
struct ItemPainter {
    QPainter& painter;
    PixelScale scale;
    const Shown& shown;
    PictureCache& pictures;

    void operator()(const PictureOperation& picture) const {
        const PixelRect box = scale.pixels(picture.box);
        if (const PixelRect part = box.intersected(shown.visible); !part.empty()) {
            const QImage& image = pictures.image(*picture.picture, {box.width(), box.height()});
            painter.drawImage(toQRect(part), image, toQRect(part).translated(-box.left, -box.top));
        }
    }

    void operator()(const FillOperation& fill) const { paint(scale.pixels(fill.box), fill.colour); }

    void operator()(const BoxOperation& box) const {
        for (const PixelRect& side : boxSides(scale.pixels(box.box), scale.pen())) {
            paint(side, box.colour);
        }
    }

    void operator()(const LineOperation& line) const {
        if (line.from.x == line.to.x || line.from.y == line.to.y) {
            paint(scale.stroke(line.from, line.to, shown.place), line.colour);
            return;
        }
        for (const PixelRect& block : scale.slant(line.from, line.to, shown.place)) {
            paint(block, line.colour);
        }
    }

    void operator()(const CircleOperation& circle) const {
        const QPointF centre(scale.pixel(circle.centre.x) + 0.5, scale.pixel(circle.centre.y) + 0.5);
        const double radius = scale.factor() * static_cast<double>(circle.radius) / static_cast<double>(twipsPerPixel);
        const double reach = radius + scale.pen();
        const QRect visible = toQRect(shown.visible);
        if (!QRectF(visible).intersects({centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach})) {
            return;
        }
        painter.setClipRect(visible);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(toQColor(circle.colour), scale.pen()));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(centre, radius, radius);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setClipping(false);
    }

private:
    void paint(const PixelRect& box, Colour colour) const {
        if (const PixelRect part = box.intersected(shown.visible); !part.empty()) {
            painter.fillRect(toQRect(part), toQColor(colour));
        }
    }
};

} // namespace

QColor toQColor(Colour colour) {
    if (colour == windowColour) {
        return QGuiApplication::palette().color(QPalette::Window);
    }
    const auto bits = static_cast<std::uint32_t>(colour);
    return QColor::fromRgb(static_cast<int>(bits & 255U), static_cast<int>((bits >> 8U) & 255U),
                           static_cast<int>((bits >> 16U) & 255U));
}

// A rectangle without pixels would reach to the left and up from its place.
QRect toQRect(const PixelRect& pixels) {
    return pixels.empty() ? QRect() : QRect(QPoint(pixels.left, pixels.top), QPoint(pixels.right, pixels.bottom));
}

// Looked through from the top, so that what later items hide is not painted at all: of a row of cards all but the last
// show a narrow strip.
void replay(Colour ground, const std::vector<PaintItem>& items, PixelScale scale, const PixelRect& part,
            PictureCache& pictures, QImage& image) {
    std::vector<Shown> topDown;
    std::vector<PixelRect> covers;
    const auto visiblePart = [&](const PixelRect& place) {
        PixelRect visible = place.intersected(part);
        for (auto cover = covers.begin(); cover != covers.end() && !visible.empty(); ++cover) {
            visible = visible.without(*cover);
        }
        return visible;
    };
    std::for_each(items.rbegin(), items.rend(), [&](const PaintItem& item) {
        const PixelRect place = scale.pixels(item.place);
        if (const PixelRect visible = visiblePart(place); !visible.empty()) {
            topDown.push_back({&item, place, visible});
            if (item.opaque()) {
                covers.push_back(place);
            }
        }
    });
    QPainter painter(&image);
    if (const PixelRect bare = visiblePart(part); !bare.empty()) {
        painter.fillRect(toQRect(bare), toQColor(ground));
    }
    std::for_each(topDown.rbegin(), topDown.rend(), [&](const Shown& shown) {
        for (const Operation& operation : shown.item->operations) {
            std::visit(ItemPainter{painter, scale, shown, pictures}, operation);
        }
    });
}

} // namespace tumble
