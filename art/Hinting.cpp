#include "art/Hinting.h"

#include <cmath>
#include <iterator>
#include <map>

namespace tumble::art {

namespace {

/// Maps one coordinate of a design to pixels, linearly between the strokes that are fitted to the grid. The outermost
/// strokes touch the ends of the glyph. Beyond each end, at most a glyph's length away, the scale is even.
class AxisHints {
public:
    AxisHints(double designed, double designedStroke, double length, double stroke)
        : stroke_(stroke),
          pixels_{{-designed, -length},
                  {0, 0},
                  {designedStroke / 2, stroke / 2},
                  {designed - designedStroke / 2, length - stroke / 2},
                  {designed, length},
                  {2 * designed, 2 * length}} {}

    /// Fits a stroke to the grid, unless one with this centre is fitted already.
    void fitStroke(double centre) {
        const double edge = (*this)(centre)-stroke_ / 2;
        pixels_.try_emplace(centre, std::ceil(edge - 0.5) + stroke_ / 2);
    }

    double operator()(double place) const {
        const auto next = pixels_.upper_bound(place);
        const auto last = std::prev(next);
        return last->second + (place - last->first) * (next->second - last->second) / (next->first - last->first);
    }

private:
    double stroke_;
    std::map<double, double> pixels_; // of the centres of strokes
};

} // namespace

Path hinted(const Path& design, const GlyphMetrics& designed, const GlyphMetrics& pixels) {
    AxisHints across(designed.width, designed.strokeWidth, pixels.width, pixels.strokeWidth);
    AxisHints down(designed.height, designed.strokeWidth, pixels.height, pixels.strokeWidth);
    Vec2 last;
    for (const auto& [verb, to, bends] : design.steps()) {
        const Vec2 from = verb == Path::Verb::Curve ? bends[1] : last;
        const bool isStroke = verb == Path::Verb::Line || verb == Path::Verb::Curve;
        if (isStroke && from.x == to.x) {
            across.fitStroke(to.x);
        }
        if (isStroke && from.y == to.y) {
            down.fitStroke(to.y);
        }
        last = to;
    }
    return design.mapped(across, down);
}

} // namespace tumble::art
