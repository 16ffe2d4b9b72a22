#pragma once

#include "platform/Picture.h"

#include <QImage>
#include <QSize>

#include <functional>
#include <map>
#include <tuple>

namespace tumble {

/// Paints a picture from its shapes at the exact size, in pixels; a null image for a picture that it does not know.
using PicturePainter = std::function<QImage(const Picture& picture, QSize size)>;

/// The pictures as the screen needs them: made once for each size in device pixels.
class PictureCache {
public:
    explicit PictureCache(PicturePainter painter) : painter_(std::move(painter)) {}

    /// From the painter or, for a picture that it does not know, decoded from the picture's bytes and scaled; for one
    /// that cannot be decoded a white card, crossed in red.
    const QImage& image(const Picture& picture, QSize size);
    /// Lets go of all images, when they will be needed in other sizes.
    void clear() { images_.clear(); }

private:
    QImage make(const Picture& picture, QSize size) const;

    PicturePainter painter_;
    std::map<std::tuple<const Picture*, int, int>, QImage> images_;
};

} // namespace tumble
