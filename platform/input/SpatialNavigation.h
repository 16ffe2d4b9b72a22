#pragma once

#include "platform/input/KeyboardCursor.h"
#include "platform/paint/DisplayList.h"

#include <optional>
#include <vector>

namespace tumble {

/// The stops of the keyboard pointer: for each opaque item that is no erasure, the middle of its largest visible
/// rectangle within `part`, in whole twips and in the order of the list. No two are equal, as each lies on another
/// item. The item under the cursor has no stop; while the cursor holds a button, the item counts as carried and covers
/// nothing.
std::vector<Point> stops(const DisplayList& list, const Rect& part, const std::optional<KeyboardCursor>& cursor = {});

/// The best stop within 45 degrees of a direction, which is one step along an axis: the one with the least sum of the
/// distances along and across it. None where there is none.
std::optional<Point> stopTowards(const std::vector<Point>& stops, Point from, Point direction);

/// The nearest stop; none when there are none.
std::optional<Point> stopNearest(const std::vector<Point>& stops, Point to);

} // namespace tumble
