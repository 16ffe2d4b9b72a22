#include "platform/paint/DisplayListView.h"

namespace tumble {

PixelRect DisplayListView::bringUpToDate(Canvas& canvas, const DisplayList& list, PixelScale scale) {
    const bool anew = outgrown(canvas.size(), scale);
    if (anew && factor_ != 0 && factor_ != scale.factor()) {
        pictures_.clear();
    }
    size_ = canvas.size();
    factor_ = scale.factor();
    const PixelRect all = canvas.bounds();
    const PixelRect changed = scale.pixels(shown_.replaceWith(list)).intersected(all);
    const PixelRect part = anew ? all : changed;
    if (part.empty()) {
        return part;
    }
    return replay(canvas, list, scale, part, pictures_);
}

} // namespace tumble
