#include "platform/paint/DisplayList.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tumble {

namespace {

constexpr std::size_t fewItems = 64;

/// The part of an item that later opaque ones do not cover.
Rect visiblePart(const std::vector<DisplayItem>& items, std::size_t position) {
    Rect part = items[position].bounds;
    for (std::size_t later = items.size() - 1; later > position && !part.empty(); --later) {
        if (items[later].opaque()) {
            part = part.subtracted(items[later].bounds);
        }
    }
    return part;
}

/// Marks the new items that repaint the first pruned ones in their order, opaque and in the same bounds, and counts
/// them.
std::pair<std::vector<bool>, std::size_t> repaintsInOrder(const std::vector<DisplayItem>& items, std::size_t pruned) {
    std::vector<bool> repaints(items.size());
    std::size_t count = 0;
    for (std::size_t i = pruned; i < items.size() && count < pruned; ++i) {
        const DisplayItem& next = items[count];
        if (items[i].bounds == next.bounds && items[i].opaque() && next.opaque()) {
            repaints[i] = true;
            ++count;
        }
    }
    return {std::move(repaints), count};
}

} // namespace

void Operations::push_back(const Operation& operation) {
    if (size_ < inPlace_.size()) {
        inPlace_[size_] = operation;
    } else {
        if (size_ == inPlace_.size()) {
            allocated_.assign(inPlace_.begin(), inPlace_.end());
        }
        allocated_.push_back(operation);
    }
    ++size_;
}

bool DisplayItem::opaque() const {
    const auto covers = [this](const auto* operation) {
        return operation != nullptr && operation->box.contains(bounds);
    };
    return operations.size() > 0 && (covers(std::get_if<FillOperation>(operations.begin())) ||
                                     covers(std::get_if<PictureOperation>(operations.begin())));
}

bool DisplayItem::erases(Colour ground) const {
    const auto* fill = operations.size() == 1 ? std::get_if<FillOperation>(operations.begin()) : nullptr;
    return fill != nullptr && fill->colour == ground;
}

DisplayList::DisplayList(float width, float height, Colour ground)
    : bounds_{.left = 0, .top = 0, .right = width - 1, .bottom = height - 1}, ground_(ground) {}

void DisplayList::add(const DisplayItem& item) {
    if (item.bounds.empty() || !bounds_.intersects(item.bounds, overhang)) {
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

// As pruned items do not cover one another, items that repaint them in their order do not either: only other new items
// can cover these. One pass in list order is enough, as removing an erasure affects only later ones. Bounds less than a
// pixel apart can share a pixel and count as intersecting.
void DisplayList::prune() const {
    struct Cover {
        std::size_t position;
        Rect bounds;
    };
    const auto [repaints, repainted] = repaintsInOrder(items_, pruned_);
    std::vector<Cover> covers;
    covers.reserve(items_.size() - pruned_);
    std::vector<Cover> others; // the covers that repaint nothing
    for (std::size_t i = pruned_; i < items_.size(); ++i) {
        if (repaints[i]) {
            covers.push_back({i, items_[i].bounds});
        } else if (items_[i].opaque()) {
            covers.push_back({i, items_[i].bounds});
            others.push_back(covers.back());
        }
    }
    auto end = items_.begin(); // of the items that are kept
    for (std::size_t i = repainted; i < items_.size(); ++i) {
        DisplayItem& item = items_[i];
        const auto coversItem = [&](const Cover& cover) {
            return cover.position > i && cover.bounds.contains(item.bounds);
        };
        const auto intersectsItem = [&](const DisplayItem& earlier) {
            return earlier.bounds.intersects(item.bounds, widestPixel);
        };
        const auto& mayCover = repaints[i] ? others : covers;
        if (std::any_of(mayCover.begin(), mayCover.end(), coversItem) ||
            (item.erases(ground_) && std::none_of(items_.begin(), end, intersectsItem))) {
            continue;
        }
        if (&*end != &item) {
            *end = std::move(item);
        }
        ++end;
    }
    items_.erase(end, items_.end());
    pruned_ = items_.size();
}

// Lists of the same length are compared position by position. In others, all between the common head and tail differs.
Rect DisplayList::replaceWith(const DisplayList& other) {
    if (ground_ != other.ground_) {
        *this = other;
        return bounds_.expanded(overhang);
    }
    const std::vector<DisplayItem>& old = items();
    const std::vector<DisplayItem>& next = other.items();
    const auto head = std::mismatch(old.begin(), old.end(), next.begin(), next.end()).first - old.begin();
    const auto tail =
        std::mismatch(old.rbegin(), old.rend() - head, next.rbegin(), next.rend() - head).first - old.rbegin();
    const auto first = static_cast<std::size_t>(head);
    const std::size_t oldEnd = old.size() - static_cast<std::size_t>(tail);
    const std::size_t nextEnd = next.size() - static_cast<std::size_t>(tail);
    Rect damage;
    for (std::size_t i = first; i < std::max(oldEnd, nextEnd); ++i) {
        if (oldEnd == nextEnd && old[i] == next[i]) {
            continue;
        }
        if (i < oldEnd) {
            damage = damage.united(visiblePart(old, i));
        }
        if (i < nextEnd) {
            damage = damage.united(visiblePart(next, i));
        }
    }
    items_.resize(next.size());
    std::copy(next.begin() + head, next.end(), items_.begin() + head);
    pruned_ = next.size();
    return damage;
}

} // namespace tumble
