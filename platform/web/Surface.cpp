#include "platform/web/Surface.h"

#include "platform/web/Page.h"

namespace tumble {

Surface::Surface(PictureBox& box, int element, PictureCache& pictures)
    : ShownSurface(box, pictures), canvas_(element), mark_(page_add(element, "mark")) {
    if (box.listens()) {
        page_property(element, "tabIndex", 0);
    }
}

void Surface::layOut(PixelSize size, PixelScale scale) {
    scale_ = scale;
    if (canvas_.size() != size) {
        canvas_.resize(size);
        shown_.forget();
    }
    ring_.reset();
}

void Surface::showNow() {
    if (box() == nullptr || canvas_.size().empty()) {
        return;
    }
    shown_.bringUpToDate(canvas_, box()->painting(), scale_);
    if (ring_ != pointer_.ring()) {
        ring_ = pointer_.ring();
        page_property(mark_.element(), "hidden", !ring_);
        const PixelRect block = ringPixels(ring_.value_or(Ring()), scale_);
        page_place(mark_.element(), block.left, block.top, block.width(), block.height());
        mark_.resize(block.size());
        paintRing(mark_, ring_ && ring_->holds, scale_);
    }
}

} // namespace tumble
