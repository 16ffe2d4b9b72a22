#include "platform/ShownPainting.h"

namespace tumble {

PixelRect ShownPainting::bringUpToDate(Canvas& canvas, const Painting& painting, PixelScale scale) {
    const bool anew = outgrown(canvas.size(), scale);
    if (anew && factor_ != 0 && factor_ != scale.factor()) {
        pictures_.clear();
    }
    size_ = canvas.size();
    factor_ = scale.factor();
    const PixelRect all = canvas.bounds();
    const PixelRect part = anew ? all : scale.pixels(painting.changedSince(shown_)).intersected(all);
    if (part.empty()) {
        return part;
    }
    shown_ = painting;
    return replay(canvas, painting, scale, part, pictures_);
}

} // namespace tumble
