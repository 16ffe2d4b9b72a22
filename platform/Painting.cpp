#include "platform/Painting.h"

#include <algorithm>
#include <utility>

namespace tumble {

bool PaintItem::opaque() const {
    if (operations.empty()) {
        return false;
    }
    if (const auto* fill = std::get_if<FillOperation>(&operations.front())) {
        return fill->box.contains(place);
    }
    const auto* picture = std::get_if<PictureOperation>(&operations.front());
    return picture != nullptr && picture->box.contains(place);
}

bool PaintItem::erases(Colour ground) const {
    const auto* fill = operations.size() == 1 ? std::get_if<FillOperation>(&operations.front()) : nullptr;
    return fill != nullptr && fill->colour == ground;
}

Painting::Painting(float width, float height, Colour ground)
    : bounds_{.left = 0, .top = 0, .right = width - 1, .bottom = height - 1}, ground_(ground) {}

void Painting::add(const PaintItem& item) {
    if (item.place.empty() || !bounds_.meets(item.place, twipsPerPixel)) {
        return;
    }
    if (item.opaque()) {
        std::erase_if(items_, [&](const PaintItem& earlier) { return item.place.contains(earlier.place); });
    }
    items_.push_back(item);
    removeIdleErasures();
}

void Painting::clear(Colour ground) {
    items_.clear();
    ground_ = ground;
}

// One pass in list order is enough: an erasure that goes can set free only later ones. Two places less than a pixel
// apart can share a pixel, so they count as meeting; no scale is below 1, where a pixel is largest.
void Painting::removeIdleErasures() {
    auto kept = items_.begin();
    for (auto item = items_.begin(); item != items_.end(); ++item) {
        const auto meetsItem = [&](const PaintItem& earlier) {
            return earlier.place.meets(item->place, twipsPerPixel);
        };
        if (item->erases(ground_) && std::none_of(items_.begin(), kept, meetsItem)) {
            continue;
        }
        if (kept != item) {
            *kept = std::move(*item);
        }
        ++kept;
    }
    items_.erase(kept, items_.end());
}

} // namespace tumble
