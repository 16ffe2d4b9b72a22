#pragma once

#include "platform/Painting.h"
#include "platform/PixelScale.h"

#include <QColor>
#include <QImage>
#include <QRect>

#include <map>
#include <tuple>

class QPainter;

namespace tumble {

QColor toQColor(Colour colour);
QRect toQRect(const PixelRect& pixels);

/// The pictures as the screen needs them: decoded once, and once scaled for each size in device pixels.
class PictureCache {
public:
    /// A picture that cannot be decoded is white, crossed in red.
    const QImage& scaled(const Picture& picture, QSize size);
    /// The picture in its own size.
    const QImage& decoded(const Picture& picture);

private:
    std::map<const Picture*, QImage> decoded_;
    std::map<std::tuple<const Picture*, int, int>, QImage> scaled_;
};

/// Turns a painting into pixels.
class PaintingReplay {
public:
    explicit PaintingReplay(PictureCache& pictures) : pictures_(pictures) {}

    /// Paints what shows of the painting inside `part` (device pixels of the image); the rest stays as it is.
    void replay(const Painting& painting, PixelScale scale, const QRect& part, QImage& image);

private:
    void draw(QPainter& painter, PixelScale scale, const PixelRect& place, const PictureOperation& picture);
    static void draw(QPainter& painter, PixelScale scale, const PixelRect& place, const FillOperation& fill);
    static void draw(QPainter& painter, PixelScale scale, const PixelRect& place, const BoxOperation& box);
    static void draw(QPainter& painter, PixelScale scale, const PixelRect& place, const LineOperation& line);
    static void draw(QPainter& painter, PixelScale scale, const PixelRect& place, const CircleOperation& circle);

    PictureCache& pictures_;
};

} // namespace tumble
