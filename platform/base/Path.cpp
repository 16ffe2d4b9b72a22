#include "platform/base/Path.h"

#include <cstddef>

namespace tumble {

void Path::curveTo(Vec2 control, Vec2 to) {
    const auto third = [control](Vec2 end) { return Vec2{(end.x + 2 * control.x) / 3, (end.y + 2 * control.y) / 3}; };
    curveTo(third(steps_.back().to), third(to), to);
}

void Path::addCircle(Vec2 centre, double radius) {
    const double control = radius * 0.5522847498; // from the end of a quarter of a circle to its control point
    const Vec2 least{centre.x - radius, centre.y - radius};
    const Vec2 middle{least.x + radius, least.y + radius};
    const Vec2 most{least.x + 2 * radius, least.y + 2 * radius};
    moveTo({most.x, middle.y});
    curveTo({most.x, middle.y + control}, {middle.x + control, most.y}, {middle.x, most.y});
    curveTo({middle.x - control, most.y}, {least.x, middle.y + control}, {least.x, middle.y});
    curveTo({least.x, middle.y - control}, {middle.x - control, least.y}, {middle.x, least.y});
    curveTo({middle.x + control, least.y}, {most.x, middle.y - control}, {most.x, middle.y});
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

Path mirrored(const Path& path) {
    return path.mapped(Transform::scaling(-1, 1));
}

Path completed(const Path& half) {
    const Path left = mirrored(half);
    const auto& back = left.steps();
    Path whole = half;
    for (std::size_t i = back.size(); --i > 0;) {
        const Vec2 to = back[i - 1].to;
        if (back[i].verb == Path::Verb::Curve) {
            whole.curveTo(back[i].controlPoints[1], back[i].controlPoints[0], to);
        } else {
            whole.lineTo(to);
        }
    }
    whole.close();
    return whole;
}

} // namespace tumble
