#include "platform/paint/PictureCache.h"

#include <algorithm>

namespace tumble {

const Canvas* PictureCache::image(const Picture& picture, PixelSize size, const Canvas& like) {
    const auto cached = std::find_if(images_.begin(), images_.end(), [&](const Image& image) {
        return image.picture == &picture && image.size == size;
    });
    if (cached != images_.end()) {
        images_.splice(images_.begin(), images_, cached);
    } else {
        images_.push_front({&picture, size, render(picture, size, like)});
        if (images_.size() > mostImages) {
            images_.pop_back();
        }
    }
    return images_.front().canvas.get();
}

void PictureCache::paint(Canvas& canvas, const Picture& picture, const PixelRect& box, const PixelRect& clip) {
    const PixelRect visible = box.intersected(clip);
    if (visible.empty()) {
        return;
    }
    if (const Canvas* image = this->image(picture, box.size(), canvas)) {
        canvas.draw(*image, visible.size().at(visible.corner() - box.corner()), visible.corner());
        return;
    }
    canvas.fill(visible, rgb(255, 255, 255));
    const int pen = std::max(1, box.width() / 20);
    for (const auto& [top, bottom] : {std::pair(box.left, box.right), std::pair(box.right, box.left)}) {
        for (const PixelRect& block : rasterizeLine({top, box.top}, {bottom, box.bottom}, pen, visible)) {
            canvas.fill(block, rgb(255, 0, 0));
        }
    }
}

std::unique_ptr<Canvas> PictureCache::render(const Picture& picture, PixelSize size, const Canvas& like) const {
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
