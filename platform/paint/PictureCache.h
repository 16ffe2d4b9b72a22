#pragma once

#include "platform/paint/Canvas.h"
#include "platform/paint/Picture.h"

#include <functional>
#include <list>
#include <memory>
#include <utility>

namespace tumble {

/// Paints a picture from its shapes all over a canvas; false for a picture that it does not know.
using PicturePainter = std::function<bool(const Picture& picture, Canvas& canvas)>;

/// Decodes a picture's bytes and scales it to a size; null for bytes that it cannot decode.
using PictureDecoder = std::function<std::unique_ptr<Canvas>(const Picture& picture, PixelSize size)>;

/// Pictures rendered at exact sizes in device pixels. Rounding makes a card a pixel wider or higher in some places, so
/// that each picture occurs in four sizes. The least recently used are evicted; the limit is above what shows at once.
class PictureCache {
public:
    explicit PictureCache(PicturePainter painter, PictureDecoder decoder = {})
        : painter_(std::move(painter)), decoder_(std::move(decoder)) {}

    /// The widest and highest picture, in pixels.
    static constexpr int mostPixels = 4096;

    /// The picture from the painter or, where that does not know it, from the decoder. Null where neither does, and for
    /// an empty size or one of more than `mostPixels` either way. Valid until the next call.
    const Canvas* image(const Picture& picture, PixelSize size, const Canvas& like);
    /// Paints a picture that fills `box`, clipped to `clip`; without an image, a white card crossed in red.
    void paint(Canvas& canvas, const Picture& picture, const PixelRect& box, const PixelRect& clip);
    void clear() { images_.clear(); }

private:
    struct Image {
        const Picture* picture;
        PixelSize size;
        std::unique_ptr<Canvas> canvas; // null where there is none to be had
    };

    std::unique_ptr<Canvas> render(const Picture& picture, PixelSize size, const Canvas& like) const;

    static constexpr std::size_t mostImages = 128;

    PicturePainter painter_;
    PictureDecoder decoder_;
    std::list<Image> images_; // the most recently used first
};

} // namespace tumble
