#pragma once

#include "platform/Picture.h"

#include <QCache>
#include <QImage>
#include <QSize>

#include <functional>
#include <utility>

namespace tumble {

/// Paints a picture from its shapes at the exact size, in pixels; a null image for a picture that it does not know.
using PicturePainter = std::function<QImage(const Picture& picture, QSize size)>;

/// The pictures as the screen needs them, each made for its exact size in device pixels. That is a pixel more in some
/// places than in others, each way, so that a picture comes in four sizes in time; kept are those used last, more than
/// show at once.
class PictureCache {
public:
    explicit PictureCache(PicturePainter painter) : painter_(std::move(painter)) {}

    /// From the painter or, for a picture that it does not know, decoded from the picture's bytes and scaled; for one
    /// that cannot be decoded a white card, crossed in red.
    QImage image(const Picture& picture, QSize size);
    /// Lets go of all images, when they will be needed in other sizes.
    void clear() { images_.clear(); }

private:
    QImage make(const Picture& picture, QSize size) const;

    static constexpr int mostImages = 128;

    PicturePainter painter_;
    QCache<std::pair<const Picture*, std::pair<int, int>>, QImage> images_{mostImages};
};

} // namespace tumble
