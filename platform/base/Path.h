#pragma once

#include "platform/base/Transform.h"

#include <array>
#include <vector>

namespace tumble {

/// One outline of straight lines and curves, or several.
class Path {
public:
    enum class Verb { Move, Line, Curve, Close };

    /// Begins where the last step ended. A curve is cubic; `Close` returns to where the outline began.
    struct Step {
        Verb verb;
        Vec2 to{};
        std::array<Vec2, 2> controlPoints{};
    };

    const std::vector<Step>& steps() const { return steps_; }

    void moveTo(Vec2 to) { steps_.push_back({Verb::Move, to}); }
    void lineTo(Vec2 to) { steps_.push_back({Verb::Line, to}); }
    void curveTo(Vec2 control1, Vec2 control2, Vec2 to) { steps_.push_back({Verb::Curve, to, {control1, control2}}); }
    /// A quadratic curve.
    void curveTo(Vec2 control, Vec2 to);
    void close() { steps_.push_back({Verb::Close}); }
    void addCircle(Vec2 centre, double radius);
    void addBox(const Box& box);
    void add(const Path& other) { steps_.insert(steps_.end(), other.steps_.begin(), other.steps_.end()); }

    /// The path with `map` applied to each point, or one function to each x and another to each y.
    template<class Map>
    Path mapped(const Map& map) const {
        Path path = *this;
        for (auto& [verb, to, controlPoints] : path.steps_) {
            to = map(to);
            controlPoints = {map(controlPoints[0]), map(controlPoints[1])};
        }
        return path;
    }
    template<class Across, class Down>
    Path mapped(const Across& across, const Down& down) const {
        return mapped([&](Vec2 point) { return Vec2{across(point.x), down(point.y)}; });
    }

private:
    std::vector<Step> steps_;
};

/// The mirror image of a path in the axis x = 0.
Path mirrored(const Path& path);

/// The closed, symmetrical outline whose right half is `half`, which begins and ends on the axis x = 0.
Path completed(const Path& half);

} // namespace tumble
