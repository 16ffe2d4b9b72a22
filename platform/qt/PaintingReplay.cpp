#include "platform/qt/PaintingReplay.h"

#include "platform/Picture.h"

#include <QPainter>

#include <variant>

namespace tumble {

namespace {

QImage crossedCard(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::red, size.width() / 20.0));
    painter.drawLine(0, 0, size.width(), size.height());
    painter.drawLine(size.width(), 0, 0, size.height());
    return image;
}

} // namespace

QColor toQColor(Colour colour) {
    const auto bits = static_cast<std::uint32_t>(colour);
    return QColor::fromRgb(static_cast<int>(bits & 255U), static_cast<int>((bits >> 8U) & 255U),
                           static_cast<int>((bits >> 16U) & 255U));
}

QRect toQRect(const PixelRect& pixels) {
    return {QPoint(pixels.left, pixels.top), QPoint(pixels.right, pixels.bottom)};
}

const QImage& PictureCache::decoded(const Picture& picture) {
    const auto [place, isNew] = decoded_.try_emplace(&picture);
    if (isNew) {
        const auto size = static_cast<int>(picture.data.size());
        place->second = QImage::fromData(reinterpret_cast<const uchar*>(picture.data.data()), size)
                            .convertToFormat(QImage::Format_RGB32);
    }
    return place->second;
}

const QImage& PictureCache::scaled(const Picture& picture, QSize size) {
    const auto [place, isNew] = scaled_.try_emplace({&picture, size.width(), size.height()});
    if (isNew) {
        const QImage& source = decoded(picture);
        place->second =
            source.isNull() ? crossedCard(size) : source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return place->second;
}

void PaintingReplay::replay(const Painting& painting, PixelScale scale, const QRect& part, QImage& image) {
    QPainter painter(&image);
    painter.fillRect(part, toQColor(painting.ground()));
    for (const PaintItem& item : painting.items()) {
        const PixelRect place = scale.pixels(item.place);
        const QRect clip = toQRect(place).intersected(part);
        if (clip.isEmpty()) {
            continue;
        }
        painter.setClipRect(clip);
        for (const Operation& operation : item.operations) {
            std::visit([&](const auto& what) { draw(painter, scale, place, what); }, operation);
        }
    }
}

void PaintingReplay::draw(QPainter& painter, PixelScale scale, const PixelRect& /*place*/,
                          const PictureOperation& picture) {
    const QRect box = toQRect(scale.pixels(picture.box));
    if (!box.isEmpty()) {
        painter.drawImage(box.topLeft(), pictures_.scaled(*picture.picture, box.size()));
    }
}

void PaintingReplay::draw(QPainter& painter, PixelScale scale, const PixelRect& /*place*/, const FillOperation& fill) {
    painter.fillRect(toQRect(scale.pixels(fill.box)), toQColor(fill.colour));
}

void PaintingReplay::draw(QPainter& painter, PixelScale scale, const PixelRect& /*place*/, const BoxOperation& box) {
    for (const PixelRect& side : boxSides(scale.pixels(box.box), scale.pen())) {
        painter.fillRect(toQRect(side), toQColor(box.colour));
    }
}

void PaintingReplay::draw(QPainter& painter, PixelScale scale, const PixelRect& place, const LineOperation& line) {
    if (line.from.x == line.to.x || line.from.y == line.to.y) {
        painter.fillRect(toQRect(scale.stroke(line.from, line.to, place)), toQColor(line.colour));
        return;
    }
    painter.setPen(QPen(toQColor(line.colour), scale.pen()));
    painter.drawLine(scale.pixel(line.from.x), scale.pixel(line.from.y), scale.pixel(line.to.x),
                     scale.pixel(line.to.y));
}

void PaintingReplay::draw(QPainter& painter, PixelScale scale, const PixelRect& /*place*/,
                          const CircleOperation& circle) {
    const double radius = scale.factor() * static_cast<double>(circle.radius) / static_cast<double>(twipsPerPixel);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(toQColor(circle.colour), scale.pen()));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(scale.pixel(circle.centre.x) + 0.5, scale.pixel(circle.centre.y) + 0.5), radius,
                        radius);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace tumble
