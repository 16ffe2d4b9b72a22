#pragma once

#include "platform/Painting.h"
#include "platform/PixelScale.h"

#include <cstddef>
#include <vector>

namespace tumble {

/// Paint items as pixels, without a display: what a test compares. A picture shows as a gradient of its own.
class Raster {
public:
    /// A surface of the painting's size at the scale, showing the ground alone.
    Raster(const Painting& painting, PixelScale scale);

    void paint(const PaintItem& item);
    void paint(const std::vector<PaintItem>& items);

    int width() const { return all_.width(); }
    int height() const { return all_.height(); }
    /// The colour of a pixel inside the surface.
    Colour at(int x, int y) const;

    friend bool operator==(const Raster& one, const Raster& other) { return one.pixels_ == other.pixels_; }

private:
    std::size_t index(int x, int y) const;
    void set(int x, int y, const PixelRect& clip, Colour colour);
    void fill(const PixelRect& rect, const PixelRect& clip, Colour colour);
    void draw(const PictureOperation& picture, const PixelRect& place, const PixelRect& clip);
    void draw(const FillOperation& operation, const PixelRect& place, const PixelRect& clip);
    void draw(const BoxOperation& operation, const PixelRect& place, const PixelRect& clip);
    void draw(const LineOperation& line, const PixelRect& place, const PixelRect& clip);
    void draw(const CircleOperation& circle, const PixelRect& place, const PixelRect& clip);

    PixelScale scale_;
    PixelRect all_;
    std::vector<Colour> pixels_;
};

} // namespace tumble
