#include "platform/paint/DisplayList.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tumble {

namespace {

constexpr std::size_t fewItems = 64;

/// What the items laid over it leave of an item.
Rect visiblePart(const std::vector<DisplayItem>& items, std::size_t position) {
    Rect part = items[position].place;
    for (std::size_t later = items.size() - 1; later > position && !part.empty(); --later) {
        if (items[later].opaque()) {
            part = part.without(items[later].place);
        }
    }
    return part;
}

} // namespace

void Operations::push_back(const Operation& operation) {
    if (many_.empty() && few_ < area_.size()) {
        area_[few_++] = operation;
        return;
    }
    if (many_.empty()) {
        many_.assign(area_.begin(), area_.end());
        few_ = 0;
    }
    many_.push_back(operation);
}

bool DisplayItem::opaque() const {
    if (operations.empty()) {
        return false;
    }
    if (const auto* fill = std::get_if<FillOperation>(operations.begin())) {
        return fill->box.contains(place);
    }
    const auto* picture = std::get_if<PictureOperation>(operations.begin());
    return picture != nullptr && picture->box.contains(place);
}

bool DisplayItem::erases(Colour ground) const {
    const auto* fill = operations.size() == 1 ? std::get_if<FillOperation>(operations.begin()) : nullptr;
    return fill != nullptr && fill->colour == ground;
}

DisplayList::DisplayList(float width, float height, Colour ground)
    : bounds_{.left = 0, .top = 0, .right = width - 1, .bottom = height - 1}, ground_(ground) {}

void DisplayList::add(const DisplayItem& item) {
    if (item.place.empty() || !bounds_.intersects(item.place, overhang)) {
        return;
    }
    items_.push_back(item);
    if (items_.size() > 2 * pruned_ + fewItems) {
        prune();
    }
}

void DisplayList::clear(Colour ground) {
    items_.clear();
    pruned_ = 0;
    ground_ = ground;
}

const std::vector<DisplayItem>& DisplayList::items() const {
    if (pruned_ != items_.size()) {
        prune();
    }
    return items_;
}

// Mostly new items repaint the settled ones in their order, each in its place. As settled items do not cover one
// another, such new ones do not either, so that only the others are compared with all. One pass in list order is
// enough: an erasure that goes can set free only later ones. Two places less than a pixel apart can share a pixel, so
// they count as meeting.
void DisplayList::prune() const {
    struct Cover {
        std::size_t position;
        Rect place;
    };
    std::vector<Cover> covers;
    covers.reserve(items_.size() - pruned_);
    std::vector<Cover> others; // of them, that repaint nothing
    std::vector<bool> repaints(items_.size());
    std::size_t repainted = 0; // so many settled items, from the first
    for (std::size_t i = pruned_; i < items_.size(); ++i) {
        if (!items_[i].opaque()) {
            continue;
        }
        covers.push_back({i, items_[i].place});
        const DisplayItem& next = items_[repainted];
        if (repainted < pruned_ && next.opaque() && next.place == items_[i].place) {
            repaints[i] = true;
            ++repainted;
        } else {
            others.push_back(covers.back());
        }
    }
    std::size_t kept = 0;
    for (std::size_t i = 0; i < items_.size(); ++i) {
        DisplayItem& item = items_[i];
        const auto coversItem = [&](const Cover& cover) {
            return cover.position > i && cover.place.contains(item.place);
        };
        const auto& mayCover = repaints[i] ? others : covers;
        const auto meetsItem = [&](const DisplayItem& earlier) {
            return earlier.place.intersects(item.place, widestPixel);
        };
        const auto lastKept = items_.begin() + static_cast<std::ptrdiff_t>(kept);
        if (i < repainted || std::any_of(mayCover.begin(), mayCover.end(), coversItem) ||
            (item.erases(ground_) && std::none_of(items_.begin(), lastKept, meetsItem))) {
            continue;
        }
        if (kept != i) {
            items_[kept] = std::move(item);
        }
        ++kept;
    }
    items_.resize(kept);
    pruned_ = kept;
}

// Items that stand at the same position in lists of the same length, or at both ends of others, look the same wherever
// none of the rest lies.
Rect DisplayList::replaceWith(const DisplayList& other) {
    if (ground_ != other.ground_) {
        *this = other;
        return bounds_.expanded(overhang);
    }
    items();
    const auto& next = other.items();
    Rect changed;
    const auto changes = [&changed](const std::vector<DisplayItem>& items, std::size_t position) {
        changed = changed.united(visiblePart(items, position));
    };
    if (items_.size() == next.size()) {
        for (std::size_t i = 0; i < next.size(); ++i) {
            if (items_[i] != next[i]) {
                changes(items_, i);
                changes(next, i);
                items_[i] = next[i];
            }
        }
        return changed;
    }
    const std::size_t common = std::min(items_.size(), next.size());
    std::size_t head = 0;
    while (head < common && items_[head] == next[head]) {
        ++head;
    }
    std::size_t tail = 0;
    while (tail < common - head && items_[items_.size() - 1 - tail] == next[next.size() - 1 - tail]) {
        ++tail;
    }
    for (std::size_t i = head; i + tail < items_.size(); ++i) {
        changes(items_, i);
    }
    for (std::size_t i = head; i + tail < next.size(); ++i) {
        changes(next, i);
    }
    *this = other;
    return changed;
}

} // namespace tumble
