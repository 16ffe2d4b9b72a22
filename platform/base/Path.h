#pragma once

#include <array>
#include <vector>

namespace tumble {

/// A place or a way in a drawing's own coordinates or in pixels, y downwards.
struct Vec2 {
    double x = 0;
    double y = 0;

    constexpr Vec2 operator+(Vec2 other) const { return {x + other.x, y + other.y}; }
    constexpr Vec2 operator-(Vec2 other) const { return {x - other.x, y - other.y}; }
    constexpr Vec2 operator-() const { return {-x, -y}; }
    friend constexpr bool operator==(const Vec2&, const Vec2&) = default;
};

/// A box by its upper left corner and its lengths.
struct Box {
    Vec2 corner;
    double width = 0;
    double height = 0;

    constexpr Vec2 centre() const { return {corner.x + width / 2, corner.y + height / 2}; }
};

/// Takes the coordinates of a drawing to others: scales, turns and mirrors, and then moves.
struct Transform {
    Vec2 right{1, 0}; ///< What one unit to the right becomes,
    Vec2 down{0, 1};  ///< what one downwards,
    Vec2 origin;      ///< and where the origin comes to lie.

    static constexpr Transform scaling(double across, double along) { return {{across, 0}, {0, along}, {}}; }

    /// First moves by so much, or scales, in the coordinates of the drawing.
    constexpr Transform moved(Vec2 by) const { return {right, down, (*this)(by)}; }
    constexpr Transform scaled(double across, double along) const {
        return {{right.x * across, right.y * across}, {down.x * along, down.y * along}, origin};
    }

    constexpr Vec2 operator()(Vec2 place) const {
        return {right.x * place.x + down.x * place.y + origin.x, right.y * place.x + down.y * place.y + origin.y};
    }
    /// Where a box comes to lie, of a transform that does not turn or mirror.
    constexpr Box operator()(const Box& box) const {
        return {(*this)(box.corner), right.x * box.width, down.y * box.height};
    }
};

/// An outline of straight lines and curves, or several.
class Path {
public:
    enum class Verb { Move, Line, Curve, Close };

    /// A step from where the last one ended; a closing one returns to where the outline began. The bends are the
    /// control points of a cubic curve.
    struct Step {
        Verb verb;
        Vec2 to{};
        std::array<Vec2, 2> bends{};
    };

    const std::vector<Step>& steps() const { return steps_; }

    void moveTo(Vec2 to) { steps_.push_back({Verb::Move, to}); }
    void lineTo(Vec2 to) { steps_.push_back({Verb::Line, to}); }
    void curveTo(Vec2 bend1, Vec2 bend2, Vec2 to) { steps_.push_back({Verb::Curve, to, {bend1, bend2}}); }
    /// A quadratic curve, with one bend.
    void curveTo(Vec2 bend, Vec2 to);
    void close() { steps_.push_back({Verb::Close}); }
    void addCircle(Vec2 centre, double radius);
    void addBox(const Box& box);
    void add(const Path& other) { steps_.insert(steps_.end(), other.steps_.begin(), other.steps_.end()); }

    Path mapped(const Transform& transform) const;
    /// The path with each coordinate taken to another.
    template<class Across, class Down>
    Path mapped(const Across& across, const Down& down) const {
        const auto map = [&](Vec2& place) { place = {across(place.x), down(place.y)}; };
        Path path = *this;
        for (Step& step : path.steps_) {
            map(step.bends[0]);
            map(step.bends[1]);
            map(step.to);
        }
        return path;
    }

private:
    std::vector<Step> steps_;
};

/// The mirror image of a path in the axis x = 0.
Path mirrored(const Path& path);

/// The closed shape of which the path is the right half: one outline that begins and ends on the axis x = 0.
Path completed(const Path& half);

} // namespace tumble
