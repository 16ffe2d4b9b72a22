#include "platform/qt/QtCanvas.h"

#include "platform/paint/Picture.h"
#include "platform/qt/Geometry.h"

#include <QGuiApplication>
#include <QPainterPath>
#include <QPalette>

namespace tumble {

namespace {

QPointF toQPoint(Vec2 point) {
    return {point.x, point.y};
}

QPainterPath toQPath(const Path& path) {
    QPainterPath result;
    result.setFillRule(Qt::WindingFill);
    result.reserve(static_cast<int>(3 * path.steps().size()));
    for (const auto& [verb, to, controlPoints] : path.steps()) {
        if (verb == Path::Verb::Move) {
            result.moveTo(toQPoint(to));
        } else if (verb == Path::Verb::Line) {
            result.lineTo(toQPoint(to));
        } else if (verb == Path::Verb::Curve) {
            result.cubicTo(toQPoint(controlPoints[0]), toQPoint(controlPoints[1]), toQPoint(to));
        } else {
            result.closeSubpath();
        }
    }
    return result;
}

QTransform toQTransform(const Transform& transform) {
    const auto& [right, down, origin] = transform;
    return {right.x, right.y, down.x, down.y, origin.x, origin.y};
}

} // namespace

QColor toQColor(Colour colour) {
    if (colour == windowColour) {
        return QGuiApplication::palette().color(QPalette::Window);
    }
    const auto [red, green, blue] = channels(colour);
    return {red, green, blue};
}

QtCanvas::QtCanvas(PixelSize size, std::optional<Colour> ground)
    : image_(size.width, size.height, ground ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied) {
    image_.fill(ground ? toQColor(*ground) : QColor(Qt::transparent));
}

const QImage& QtCanvas::image() const {
    if (painter_.isActive()) {
        painter_.end();
    }
    return image_;
}

std::unique_ptr<Canvas> QtCanvas::createSimilar(PixelSize size, std::optional<Colour> ground) const {
    return std::make_unique<QtCanvas>(size, ground);
}

void QtCanvas::applyClip() const {
    painter_.setClipRect(clip_.value_or(QRect()), clip_ ? Qt::ReplaceClip : Qt::NoClip);
}

QPainter& QtCanvas::exactPainter() {
    if (!painter_.isActive()) {
        painter_.begin(&image_);
        applyClip();
        isSmooth_ = false;
    }
    if (isSmooth_) {
        painter_.setRenderHint(QPainter::Antialiasing, false);
        painter_.resetTransform();
        isSmooth_ = false;
    }
    return painter_;
}

QPainter& QtCanvas::smoothPainter(const Transform& toPixels) {
    exactPainter().setRenderHint(QPainter::Antialiasing);
    painter_.setTransform(toQTransform(toPixels));
    isSmooth_ = true;
    return painter_;
}

void QtCanvas::clip(const PixelRect& block) {
    clip_ = block.contains(bounds()) ? std::nullopt : std::optional(toQRect(block));
    exactPainter();
    applyClip();
}

void QtCanvas::fill(const PixelRect& block, Colour colour) {
    if (!block.empty()) {
        exactPainter().fillRect(toQRect(block), toQColor(colour));
    }
}

void QtCanvas::fill(const Path& path, const Transform& toPixels, Colour colour) {
    smoothPainter(toPixels).fillPath(toQPath(path), toQColor(colour));
}

void QtCanvas::fill(const Path& path, const Transform& toPixels, const Canvas& texture, PixelPoint corner) {
    QBrush brush(dynamic_cast<const QtCanvas&>(texture).image());
    brush.setTransform(QTransform::fromTranslate(corner.x, corner.y) * toQTransform(toPixels).inverted());
    smoothPainter(toPixels).fillPath(toQPath(path), brush);
}

void QtCanvas::stroke(const Path& path, const Transform& toPixels, const Pen& pen) {
    const bool isRound = pen.cap == LineCap::Round;
    smoothPainter(toPixels).strokePath(toQPath(path), QPen(toQColor(pen.colour), pen.width, Qt::SolidLine,
                                                           isRound ? Qt::RoundCap : Qt::FlatCap,
                                                           isRound ? Qt::RoundJoin : Qt::MiterJoin));
}

void QtCanvas::draw(const Canvas& image, const PixelRect& block, PixelPoint at, Flip flip) {
    if (block.empty()) {
        return;
    }
    const auto& from = dynamic_cast<const QtCanvas&>(image);
    const QImage& pixels = &from == this ? image_ : from.image();
    if (flip == Flip::None) {
        exactPainter().drawImage(QPoint(at.x, at.y), pixels, toQRect(block));
    } else {
        const QImage part = pixels.copy(toQRect(block));
        exactPainter().drawImage(at.x, at.y, part.mirrored(flipsHorizontally(flip), flipsVertically(flip)));
    }
}

std::unique_ptr<Canvas> decoded(const Picture& picture, PixelSize size) {
    const auto* bytes = reinterpret_cast<const uchar*>(picture.data.data());
    const QImage image = QImage::fromData(bytes, static_cast<int>(picture.data.size()));
    if (image.isNull()) {
        return nullptr;
    }
    const QImage scaled = image.scaled(size.width, size.height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return std::make_unique<QtCanvas>(scaled.convertToFormat(QImage::Format_RGB32));
}

} // namespace tumble
