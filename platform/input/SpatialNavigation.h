#pragma once

#include "platform/input/KeyboardCursor.h"
#include "platform/paint/DisplayList.h"

#include <optional>
#include <vector>

namespace tumble {

/// Where the keyboard's pointer stops: of each opaque item that is no erasure, the middle of the largest rectangle that
/// it leaves to see within `part`. Whole twips, in the order of the painting; no two are equal, as each lies on another
/// item. The item under the ring has no stop; while the ring holds, it is taken for what the ring carries, and hides
/// nothing.
std::vector<Point> stops(const DisplayList& list, const Rect& part, const std::optional<KeyboardCursor>& cursor = {});

/// The best of the stops within 45 degrees of a direction, which is one step along an axis: the least way along it and
/// across, together. None where there is none.
std::optional<Point> stopTowards(const std::vector<Point>& stops, Point from, Point direction);

/// The one of the stops that lies nearest; none when there are none.
std::optional<Point> stopNearest(const std::vector<Point>& stops, Point to);

} // namespace tumble
