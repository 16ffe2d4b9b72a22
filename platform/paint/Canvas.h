#pragma once

#include "platform/base/Geometry.h"
#include "platform/base/NonMovable.h"
#include "platform/base/Path.h"
#include "platform/base/Pixels.h"

#include <memory>
#include <optional>

namespace tumble {

inline Box toBox(const PixelRect& pixels) {
    return {{static_cast<double>(pixels.left), static_cast<double>(pixels.top)},
            static_cast<double>(pixels.width()),
            static_cast<double>(pixels.height())};
}

/// Of round ones the ends and corners are round; of sharp ones the ends are flat and the corners pointed.
enum class CapAndJoin { Round, Sharp };

struct Pen {
    Colour colour;
    double width; ///< In the coordinates of the path.
    CapAndJoin capAndJoin = CapAndJoin::Round;
};

/// What becomes of a block of pixels that is drawn: right and left changed, top and bottom, or both.
enum class Flip { None, Horizontal, Vertical, Both };

/// An image to paint on, and to draw on others of its kind: the role that a desktop's toolkit fills. It is in device
/// pixels; what is outside, or outside the clip, does not show. Blocks are exact, the edges of paths smoothed where the
/// toolkit does so, and what a path's outlines wind around is inside. No pixel can be read.
class Canvas : NonMovable {
public:
    virtual ~Canvas() = default;

    virtual PixelSize size() const = 0;
    PixelRect bounds() const { return size().at({}); }

    /// A new one: filled with a ground, or transparent without one. The size is at least one pixel each way.
    virtual std::unique_ptr<Canvas> createSimilar(PixelSize size, std::optional<Colour> ground) const = 0;

    /// Nothing shows outside the block from now on; of `bounds()`, everything does.
    virtual void clip(const PixelRect& block) = 0;

    virtual void fill(const PixelRect& block, Colour colour) = 0;
    virtual void fill(const Path& path, const Transform& toPixels, Colour colour) = 0;
    /// Fills with an image that repeats both ways, from the pixel in which it has its upper left corner.
    virtual void fill(const Path& path, const Transform& toPixels, const Canvas& texture, PixelPoint corner) = 0;
    virtual void stroke(const Path& path, const Transform& toPixels, const Pen& pen) = 0;
    /// Draws a block of an image, which may be this one where the two blocks share no pixel, with its upper left corner
    /// on a pixel.
    virtual void draw(const Canvas& image, const PixelRect& block, PixelPoint at, Flip flip = Flip::None) = 0;
};

/// A canvas, and what takes the coordinates of a drawing to its pixels.
struct Drawing {
    Canvas& canvas;
    Transform toPixels{};

    Drawing moved(Vec2 by) const { return {canvas, toPixels.moved(by)}; }
    Drawing scaled(double across, double along) const { return {canvas, toPixels.scaled(across, along)}; }
};

} // namespace tumble
