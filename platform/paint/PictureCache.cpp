#include "platform/paint/PictureCache.h"

#include <algorithm>

namespace tumble {

const Canvas* PictureCache::image(const Picture& picture, PixelSize size, const Canvas& like) {
    ++uses_;
    const auto kept = std::find_if(images_.begin(), images_.end(),
                                   [&](const Image& image) { return image.picture == &picture && image.size == size; });
    if (kept != images_.end()) {
        kept->used = uses_;
        return kept->canvas.get();
    }
    Image image{&picture, size, made(picture, size, like), uses_};
    if (images_.size() < mostImages) {
        return images_.emplace_back(std::move(image)).canvas.get();
    }
    const auto longestUnused = std::min_element(
        images_.begin(), images_.end(), [](const Image& one, const Image& other) { return one.used < other.used; });
    *longestUnused = std::move(image);
    return longestUnused->canvas.get();
}

std::unique_ptr<Canvas> PictureCache::made(const Picture& picture, PixelSize size, const Canvas& like) const {
    if (size.empty() || std::max(size.width, size.height) > mostPixels) {
        return nullptr;
    }
    auto canvas = like.createSimilar(size, rgb(255, 255, 255));
    if (painter_ && painter_(picture, *canvas)) {
        return canvas;
    }
    return decoder_ ? decoder_(picture, size) : nullptr;
}

} // namespace tumble
