#include "platform/web/WebCanvas.h"

#include <cstddef>

namespace tumble {

void WebCanvas::resize(PixelSize size) {
    size_ = size;
    page_canvasSize(element_, size.width, size.height);
}

std::unique_ptr<Canvas> WebCanvas::createSimilar(PixelSize size, std::optional<Colour> ground) const {
    auto canvas = std::make_unique<WebCanvas>(page_canvasMake());
    canvas->resize(size);
    if (ground) {
        canvas->fill(canvas->bounds(), *ground);
    }
    return canvas;
}

void WebCanvas::clip(const PixelRect& block) {
    page_canvasClip(element_, block.left, block.top, block.width(), block.height());
}

void WebCanvas::fill(const PixelRect& block, Colour colour) {
    if (!block.empty()) {
        page_canvasFill(element_, colour, block.left, block.top, block.width(), block.height());
    }
}

void WebCanvas::fill(const Path& path, const Transform& toPixels, Colour colour) {
    paint(path, toPixels, colour);
}

void WebCanvas::fill(const Path& path, const Transform& toPixels, const Canvas& texture, PixelPoint corner) {
    page_canvasTexture(element_, static_cast<const WebCanvas&>(texture).element_, corner.x, corner.y);
    paint(path, toPixels, windowColour);
}

void WebCanvas::stroke(const Path& path, const Transform& toPixels, const Pen& pen) {
    paint(path, toPixels, pen.colour, pen.width, pen.cap == LineCap::Round);
}

void WebCanvas::paint(const Path& path, const Transform& toPixels, Colour colour, double width, bool isRound) const {
    static_assert(sizeof(Transform) == 6 * sizeof(double) && sizeof(Path::Step) == 7 * sizeof(double) &&
                  offsetof(Path::Step, to) == sizeof(double) &&
                  offsetof(Path::Step, controlPoints) == 3 * sizeof(double));
    page_canvasPath(element_, colour, &toPixels.right.x, path.steps().data(), static_cast<int>(path.steps().size()),
                    width, isRound);
}

void WebCanvas::draw(const Canvas& image, const PixelRect& block, PixelPoint at, Flip flip) {
    if (!block.empty()) {
        page_canvasDraw(element_, static_cast<const WebCanvas&>(image).element_, block.left, block.top, block.width(),
                        block.height(), at.x, at.y, flipsHorizontally(flip), flipsVertically(flip));
    }
}

} // namespace tumble
