#include "platform/paint/DisplayListView.h"

namespace tumble {

PixelRect DisplayListView::bringUpToDate(Canvas& canvas, const DisplayList& list, PixelScale scale) {
    const PixelRect all = canvas.bounds();
    PixelRect damage = scale.pixels(shown_.replaceWith(list)).intersected(all);
    if (needsRepaint(canvas.size(), scale)) {
        damage = all;
    }
    if (factor_ != 0 && factor_ != scale.factor()) {
        pictures_.clear();
    }
    size_ = canvas.size();
    factor_ = scale.factor();
    return damage.empty() ? damage : replay(canvas, list, scale, damage, pictures_);
}

} // namespace tumble
