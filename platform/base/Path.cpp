#include "platform/base/Path.h"

#include <algorithm>
#include <cstddef>

namespace tumble {

void Path::curveTo(Vec2 bend, Vec2 to) {
    const Vec2 from = steps_.back().to;
    const auto third = [bend](Vec2 end) { return Vec2{(end.x + 2 * bend.x) / 3, (end.y + 2 * bend.y) / 3}; };
    curveTo(third(from), third(to), to);
}

void Path::addCircle(Vec2 centre, double radius) {
    constexpr double bend = 0.5522847498; // how far the control points of a quarter of a circle reach
    const double near = radius * bend;
    const Vec2 least{centre.x - radius, centre.y - radius};
    const Vec2 middle{least.x + radius, least.y + radius};
    const Vec2 most{least.x + 2 * radius, least.y + 2 * radius};
    moveTo({most.x, middle.y});
    curveTo({most.x, middle.y + near}, {middle.x + near, most.y}, {middle.x, most.y});
    curveTo({middle.x - near, most.y}, {least.x, middle.y + near}, {least.x, middle.y});
    curveTo({least.x, middle.y - near}, {middle.x - near, least.y}, {middle.x, least.y});
    curveTo({middle.x + near, least.y}, {most.x, middle.y - near}, {most.x, middle.y});
    close();
}

void Path::addBox(const Box& box) {
    const auto [left, top] = box.corner;
    moveTo(box.corner);
    lineTo({left + box.width, top});
    lineTo({left + box.width, top + box.height});
    lineTo({left, top + box.height});
    close();
}

Path Path::mapped(const Transform& transform) const {
    Path path = *this;
    for (Step& step : path.steps_) {
        step.bends = {transform(step.bends[0]), transform(step.bends[1])};
        step.to = transform(step.to);
    }
    return path;
}

Path mirrored(const Path& path) {
    return path.mapped(Transform::scaling(-1, 1));
}

Path completed(const Path& half) {
    const Path other = mirrored(half);
    const auto& back = other.steps();
    Path whole = half;
    for (std::size_t i = back.size(); --i > 0;) {
        const Vec2 to = back[i - 1].to;
        if (back[i].verb == Path::Verb::Curve) {
            whole.curveTo(back[i].bends[1], back[i].bends[0], to);
        } else {
            whole.lineTo(to);
        }
    }
    whole.close();
    return whole;
}

} // namespace tumble
