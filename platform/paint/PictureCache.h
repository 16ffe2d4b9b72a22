#pragma once

#include "platform/paint/Canvas.h"
#include "platform/paint/Picture.h"

#include <functional>
#include <memory>
#include <vector>

namespace tumble {

/// Paints a picture from its shapes all over a canvas; false for a picture that it does not know.
using PicturePainter = std::function<bool(const Picture& picture, Canvas& canvas)>;

/// Decodes a picture's bytes and scales it to a size; null for bytes that it cannot decode.
using PictureDecoder = std::function<std::unique_ptr<Canvas>(const Picture& picture, PixelSize size)>;

/// The pictures as the screen needs them, each made for its exact size in device pixels. That is a pixel more in some
/// places than in others, each way, so that a picture comes in four sizes in time; kept are those used last, more than
/// show at once.
class PictureCache {
public:
    explicit PictureCache(PicturePainter painter, PictureDecoder decoder = {})
        : painter_(std::move(painter)), decoder_(std::move(decoder)) {}

    /// The widest and highest picture, in pixels.
    static constexpr int mostPixels = 4096;

    /// An image of the picture, from the painter or, where that does not know it, from the decoder. Null where neither
    /// does, and for a size of nothing or of more than `mostPixels` either way. Good until the next call.
    const Canvas* image(const Picture& picture, PixelSize size, const Canvas& like);
    /// Lets go of all images, when they will be needed in other sizes.
    void clear() { images_.clear(); }

private:
    struct Image {
        const Picture* picture;
        PixelSize size;
        std::unique_ptr<Canvas> canvas; // null where there is none to be had
        unsigned used;                  // the greater, the later
    };

    std::unique_ptr<Canvas> made(const Picture& picture, PixelSize size, const Canvas& like) const;

    static constexpr std::size_t mostImages = 128;

    PicturePainter painter_;
    PictureDecoder decoder_;
    std::vector<Image> images_;
    unsigned uses_ = 0;
};

} // namespace tumble
