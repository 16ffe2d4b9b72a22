#include "platform/qt/PaintingReplay.h"

#include <QPainter>

#include <variant>

namespace tumble {

namespace {

/// Paints the operations of one item.
struct ItemPainter {
    QPainter& painter;
    PixelScale scale;
    PixelRect place;
    PictureCache& pictures;

    void operator()(const PictureOperation& picture) const {
        if (const QRect box = toQRect(scale.pixels(picture.box)); !box.isEmpty()) {
            painter.drawImage(box.topLeft(), pictures.image(*picture.picture, box.size()));
        }
    }

    void operator()(const FillOperation& fill) const {
        painter.fillRect(toQRect(scale.pixels(fill.box)), toQColor(fill.colour));
    }

    void operator()(const BoxOperation& box) const {
        for (const PixelRect& side : boxSides(scale.pixels(box.box), scale.pen())) {
            painter.fillRect(toQRect(side), toQColor(box.colour));
        }
    }

    void operator()(const LineOperation& line) const {
        if (line.from.x == line.to.x || line.from.y == line.to.y) {
            painter.fillRect(toQRect(scale.stroke(line.from, line.to, place)), toQColor(line.colour));
            return;
        }
        painter.setPen(QPen(toQColor(line.colour), scale.pen()));
        painter.drawLine(scale.pixel(line.from.x), scale.pixel(line.from.y), scale.pixel(line.to.x),
                         scale.pixel(line.to.y));
    }

    void operator()(const CircleOperation& circle) const {
        const QPointF centre(scale.pixel(circle.centre.x) + 0.5, scale.pixel(circle.centre.y) + 0.5);
        const double radius = scale.factor() * static_cast<double>(circle.radius) / static_cast<double>(twipsPerPixel);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(toQColor(circle.colour), scale.pen()));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(centre, radius, radius);
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
};

} // namespace

QColor toQColor(Colour colour) {
    const auto bits = static_cast<std::uint32_t>(colour);
    return QColor::fromRgb(static_cast<int>(bits & 255U), static_cast<int>((bits >> 8U) & 255U),
                           static_cast<int>((bits >> 16U) & 255U));
}

QRect toQRect(const PixelRect& pixels) {
    return {QPoint(pixels.left, pixels.top), QPoint(pixels.right, pixels.bottom)};
}

void replay(Colour ground, const std::vector<PaintItem>& items, PixelScale scale, const QRect& part,
            PictureCache& pictures, QImage& image) {
    QPainter painter(&image);
    painter.fillRect(part, toQColor(ground));
    for (const PaintItem& item : items) {
        const PixelRect place = scale.pixels(item.place);
        const QRect clip = toQRect(place).intersected(part);
        if (clip.isEmpty()) {
            continue;
        }
        painter.setClipRect(clip);
        for (const Operation& operation : item.operations) {
            std::visit(ItemPainter{painter, scale, place, pictures}, operation);
        }
    }
}

} // namespace tumble
