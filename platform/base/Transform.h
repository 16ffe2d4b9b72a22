#pragma once

#include "platform/base/Geometry.h"

namespace tumble {

/// An affine transform.
struct Transform {
    Vec2 right{1, 0}; ///< The image of one unit to the right,
    Vec2 down{0, 1};  ///< of one unit downwards,
    Vec2 origin;      ///< and of the origin.

    static constexpr Transform scaling(double across, double along) { return {{across, 0}, {0, along}, {}}; }

    /// Moves, or scales, before this transform applies.
    constexpr Transform moved(Vec2 by) const { return {right, down, (*this)(by)}; }
    constexpr Transform scaled(double across, double along) const {
        return {{right.x * across, right.y * across}, {down.x * along, down.y * along}, origin};
    }

    constexpr Vec2 operator()(Vec2 point) const {
        return {right.x * point.x + down.x * point.y + origin.x, right.y * point.x + down.y * point.y + origin.y};
    }
    /// Only for a transform that neither turns nor mirrors.
    constexpr Box operator()(const Box& box) const {
        return {(*this)(box.corner), right.x * box.width, down.y * box.height};
    }
};

} // namespace tumble
