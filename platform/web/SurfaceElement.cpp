#include "platform/web/SurfaceElement.h"

#include "platform/web/Page.h"

namespace tumble {

SurfaceElement::SurfaceElement(PictureBox& box, int element, PictureCache& pictures)
    : SurfaceView(box, pictures), canvas_(element), mark_(page_add(element, "mark")) {
    if (box.listens()) {
        page_property(element, "tabIndex", 0);
    }
}

void SurfaceElement::layOut(PixelSize size, PixelScale scale) {
    scale_ = scale;
    if (canvas_.size() != size) {
        canvas_.resize(size);
        shown_.invalidate();
    }
    cursor_.reset();
}

void SurfaceElement::showNow() {
    if (box() == nullptr || canvas_.size().empty()) {
        return;
    }
    shown_.bringUpToDate(canvas_, box()->displayList(), scale_);
    if (cursor_ != pointer_.cursor()) {
        cursor_ = pointer_.cursor();
        page_property(mark_.element(), "hidden", !cursor_);
        const PixelRect block = cursorPixels(cursor_.value_or(KeyboardCursor()), scale_);
        page_place(mark_.element(), block.left, block.top, block.width(), block.height());
        mark_.resize(block.size());
        paintCursor(mark_, cursor_ && cursor_->holds, scale_);
    }
}

} // namespace tumble
