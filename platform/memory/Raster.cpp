#include "platform/memory/Raster.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tumble {

namespace {

using Edge = std::pair<Vec2, Vec2>;

Vec2 between(Vec2 from, Vec2 to, double share) {
    return {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share};
}

/// The edges of a path, its curves flattened. `allClosed` closes every outline, as filling requires.
std::vector<Edge> edges(const Path& path, bool allClosed) {
    constexpr int pieces = 16;
    std::vector<Edge> all;
    Vec2 first;
    Vec2 last;
    const auto lineTo = [&](Vec2 to) {
        all.emplace_back(last, to);
        last = to;
    };
    for (const auto& [verb, to, controlPoints] : path.steps()) {
        if (verb == Path::Verb::Close || (verb == Path::Verb::Move && allClosed)) {
            lineTo(first);
        }
        if (verb == Path::Verb::Move) {
            first = last = to;
        } else if (verb == Path::Verb::Line) {
            lineTo(to);
        } else if (verb == Path::Verb::Curve) {
            const Vec2 from = last;
            for (int piece = 1; piece <= pieces; ++piece) {
                const double share = static_cast<double>(piece) / pieces;
                const auto& [control1, control2] = controlPoints;
                const Vec2 middle = between(control1, control2, share);
                lineTo(between(between(between(from, control1, share), middle, share),
                               between(middle, between(control2, to, share), share), share));
            }
        }
    }
    if (allClosed) {
        lineTo(first);
    }
    return all;
}

} // namespace

Raster::Raster(PixelSize size, std::optional<Colour> ground)
    : size_(size),
      clip_(bounds()),
      pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height), ground.value_or(clear)) {}

std::unique_ptr<Canvas> Raster::createSimilar(PixelSize size, std::optional<Colour> ground) const {
    return std::make_unique<Raster>(size, ground);
}

std::size_t Raster::index(PixelPoint pixel) const {
    return static_cast<std::size_t>(pixel.y) * static_cast<std::size_t>(size_.width) +
           static_cast<std::size_t>(pixel.x);
}

template<class Source>
void Raster::paint(const PixelRect& block, const Source& source) {
    const PixelRect part = block.intersected(clip_);
    for (int y = part.top; y <= part.bottom; ++y) {
        for (int x = part.left; x <= part.right; ++x) {
            if (const Colour colour = source({x, y}); colour != clear) {
                pixels_[index({x, y})] = colour;
            }
        }
    }
}

template<class Source>
void Raster::paintInside(const Path& path, const Transform& toPixels, const Source& source) {
    const std::vector<Edge> outline = edges(path.mapped(toPixels), true);
    for (int y = clip_.top; y <= clip_.bottom; ++y) {
        std::vector<std::pair<double, int>> crossings; // x, and 1 for an edge downwards, -1 for one upwards
        for (const auto& [from, to] : outline) {
            const double middle = y + 0.5;
            if ((from.y <= middle) != (to.y <= middle)) {
                crossings.emplace_back(between(from, to, (middle - from.y) / (to.y - from.y)).x,
                                       from.y < to.y ? 1 : -1);
            }
        }
        std::sort(crossings.begin(), crossings.end());
        int winding = 0;
        double begin = 0;
        for (const auto& [x, turn] : crossings) {
            if (winding != 0) {
                paint({.left = static_cast<int>(std::ceil(begin - 0.5)),
                       .top = y,
                       .right = static_cast<int>(std::ceil(x - 0.5)) - 1,
                       .bottom = y},
                      source);
            }
            winding += turn;
            begin = x;
        }
    }
}

void Raster::fill(const PixelRect& block, Colour colour) {
    paint(block, [colour](PixelPoint) { return colour; });
}

void Raster::fill(const Path& path, const Transform& toPixels, Colour colour) {
    paintInside(path, toPixels, [colour](PixelPoint) { return colour; });
}

void Raster::fill(const Path& path, const Transform& toPixels, const Canvas& texture, PixelPoint corner) {
    const auto& tile = dynamic_cast<const Raster&>(texture);
    const auto wrapped = [](int place, int length) { return (place % length + length) % length; };
    paintInside(path, toPixels, [&](PixelPoint pixel) {
        return tile.at(
            {wrapped(pixel.x - corner.x, tile.size().width), wrapped(pixel.y - corner.y, tile.size().height)});
    });
}

void Raster::stroke(const Path& path, const Transform& toPixels, const Pen& pen) {
    const int width = std::max(1, static_cast<int>(std::lround(pen.width * std::abs(toPixels.right.x))));
    for (const auto& [from, to] : edges(path.mapped(toPixels), false)) {
        const int steps = 1 + static_cast<int>(std::hypot(to.x - from.x, to.y - from.y));
        for (int step = 0; step <= steps; ++step) {
            const Vec2 middle = between(from, to, static_cast<double>(step) / steps);
            const PixelPoint corner{static_cast<int>(std::floor(middle.x - (width - 1) / 2.0)),
                                    static_cast<int>(std::floor(middle.y - (width - 1) / 2.0))};
            fill(PixelSize{width, width}.at(corner), pen.colour);
        }
    }
}

void Raster::draw(const Canvas& image, const PixelRect& block, PixelPoint at, Flip flip) {
    const auto& from = dynamic_cast<const Raster&>(image);
    const PixelRect to = block.size().at(at);
    paint(to, [&](PixelPoint pixel) {
        const int right = flipsHorizontally(flip) ? to.right - pixel.x : pixel.x - to.left;
        const int down = flipsVertically(flip) ? to.bottom - pixel.y : pixel.y - to.top;
        return from.at({block.left + right, block.top + down});
    });
}

} // namespace tumble
