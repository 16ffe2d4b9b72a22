#include "platform/input/SpatialNavigation.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace tumble {

namespace {

// In whole twips, so that a stop lies on its item and on no cover, however places are rounded.
Rect inwards(const Rect& rect) {
    return {.left = std::ceil(rect.left),
            .top = std::ceil(rect.top),
            .right = std::floor(rect.right),
            .bottom = std::floor(rect.bottom)};
}
Rect outwards(const Rect& rect) {
    return {.left = std::floor(rect.left),
            .top = std::floor(rect.top),
            .right = std::ceil(rect.right),
            .bottom = std::ceil(rect.bottom)};
}

/// Keeps only rectangles that lie in no other.
void addLargest(std::vector<Rect>& rects, const Rect& added) {
    const auto holdsAdded = [&](const Rect& rect) { return rect.contains(added); };
    if (!added.empty() && std::none_of(rects.begin(), rects.end(), holdsAdded)) {
        std::erase_if(rects, [&](const Rect& rect) { return added.contains(rect); });
        rects.push_back(added);
    }
}

/// The largest rectangles in what a cover leaves of others.
std::vector<Rect> without(const std::vector<Rect>& open, const Rect& cover) {
    std::vector<Rect> rest;
    std::copy_if(open.begin(), open.end(), std::back_inserter(rest),
                 [&](const Rect& rect) { return !rect.intersects(cover); });
    for (const Rect& rect : open) {
        if (rect.intersects(cover)) {
            const auto& [left, top, right, bottom] = rect;
            addLargest(rest, {.left = left, .top = top, .right = cover.left - 1, .bottom = bottom});
            addLargest(rest, {.left = cover.right + 1, .top = top, .right = right, .bottom = bottom});
            addLargest(rest, {.left = left, .top = top, .right = right, .bottom = cover.top - 1});
            addLargest(rest, {.left = left, .top = cover.bottom + 1, .right = right, .bottom = bottom});
        }
    }
    return rest;
}

double area(const Rect& rect) {
    return (static_cast<double>(rect.right) - rect.left + 1) * (static_cast<double>(rect.bottom) - rect.top + 1);
}

Point middleOfLargest(const std::vector<Rect>& rects) {
    const Rect& largest = *std::max_element(rects.begin(), rects.end(),
                                            [](const Rect& one, const Rect& other) { return area(one) < area(other); });
    return {std::floor((largest.left + largest.right) / 2), std::floor((largest.top + largest.bottom) / 2)};
}

/// The stop of the least finite cost.
template<class Cost>
std::optional<Point> cheapest(const std::vector<Point>& stops, Cost cost) {
    std::optional<Point> best;
    double least = std::numeric_limits<double>::infinity();
    for (const Point stop : stops) {
        if (const double of = cost(static_cast<double>(stop.x), static_cast<double>(stop.y)); of < least) {
            least = of;
            best = stop;
        }
    }
    return best;
}

} // namespace

std::vector<Point> stops(const DisplayList& list, const Rect& part, const std::optional<KeyboardCursor>& cursor) {
    std::vector<const DisplayItem*> opaque;
    for (const DisplayItem& item : list.items()) {
        if (item.opaque()) {
            opaque.push_back(&item);
        }
    }
    const auto liesUnderCursor = [&](const DisplayItem* item) { return cursor && item->bounds.contains(cursor->at); };
    const auto top = std::find_if(opaque.rbegin(), opaque.rend(), liesUnderCursor);
    const DisplayItem* const under = top != opaque.rend() && !(*top)->erases(list.ground()) ? *top : nullptr;
    if (under != nullptr && cursor->holds) {
        std::erase(opaque, under);
    }
    std::vector<Point> found;
    for (auto item = opaque.begin(); item != opaque.end(); ++item) {
        if (*item == under || (*item)->erases(list.ground())) {
            continue;
        }
        std::vector<Rect> open;
        addLargest(open, inwards((*item)->bounds.intersected(part)));
        for (auto cover = std::next(item); cover != opaque.end() && !open.empty(); ++cover) {
            if (const Rect hidden = outwards((*cover)->bounds); hidden.intersects((*item)->bounds)) {
                open = without(open, hidden);
            }
        }
        if (!open.empty()) {
            found.push_back(middleOfLargest(open));
        }
    }
    return found;
}

std::optional<Point> stopTowards(const std::vector<Point>& stops, Point from, Point direction) {
    return cheapest(stops, [=](double x, double y) {
        const double along = (x - from.x) * direction.x + (y - from.y) * direction.y;
        const double across = std::abs((x - from.x) * direction.y + (y - from.y) * direction.x);
        return along > 0 && across <= along ? along + across : std::numeric_limits<double>::infinity();
    });
}

std::optional<Point> stopNearest(const std::vector<Point>& stops, Point to) {
    return cheapest(stops, [=](double x, double y) { return std::hypot(x - to.x, y - to.y); });
}

} // namespace tumble
