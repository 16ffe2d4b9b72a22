#pragma once

#include "platform/base/Colour.h"
#include "platform/base/NonMovable.h"
#include "platform/base/Path.h"
#include "platform/base/Pixels.h"

#include <memory>
#include <optional>

namespace tumble {

/// Round caps come with round joins, flat ones with mitred joins.
enum class LineCap { Round, Flat };

struct Pen {
    Colour colour;
    double width; ///< In the coordinates of the path.
    LineCap cap = LineCap::Round;
};

/// How a block of pixels is mirrored: left and right swapped, top and bottom, or both.
enum class Flip { None, Horizontal, Vertical, Both };

constexpr bool flipsHorizontally(Flip flip) {
    return flip == Flip::Horizontal || flip == Flip::Both;
}
constexpr bool flipsVertically(Flip flip) {
    return flip == Flip::Vertical || flip == Flip::Both;
}

/// An image in device pixels, painted on by the desktop's toolkit. It draws only canvases of its own class. Painting is
/// clipped to the image and the clip rectangle. Blocks are exact; the edges of paths are smoothed where the toolkit
/// does so. Paths are filled by the non-zero winding rule. Pixels cannot be read.
class Canvas : NonMovable {
public:
    virtual ~Canvas() = default;

    virtual PixelSize size() const = 0;
    PixelRect bounds() const { return size().at({}); }

    /// A canvas of the same class, filled with `ground`, or transparent without one. `size` is at least one pixel each
    /// way.
    virtual std::unique_ptr<Canvas> createSimilar(PixelSize size, std::optional<Colour> ground) const = 0;

    /// Sets the clip rectangle; `bounds()` removes it.
    virtual void clip(const PixelRect& block) = 0;

    virtual void fill(const PixelRect& block, Colour colour) = 0;
    virtual void fill(const Path& path, const Transform& toPixels, Colour colour) = 0;
    /// Fills with a texture that repeats both ways, with the upper left corner of one tile on `corner`.
    virtual void fill(const Path& path, const Transform& toPixels, const Canvas& texture, PixelPoint corner) = 0;
    virtual void stroke(const Path& path, const Transform& toPixels, const Pen& pen) = 0;
    /// Draws a block of an image with its upper left corner on `at`. The image may be this canvas where the source and
    /// the target do not overlap.
    virtual void draw(const Canvas& image, const PixelRect& block, PixelPoint at, Flip flip = Flip::None) = 0;
};

} // namespace tumble
