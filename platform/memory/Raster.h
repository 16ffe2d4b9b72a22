#pragma once

#include "platform/paint/Canvas.h"

#include <vector>

namespace tumble {

/// A canvas in memory whose pixels tests compare. Nothing is smoothed: a pixel is inside a path if its centre is.
class Raster : public Canvas {
public:
    Raster(PixelSize size, std::optional<Colour> ground);

    /// The colour of a pixel inside the canvas; `clear` where it is transparent.
    Colour at(PixelPoint pixel) const { return pixels_.at(index(pixel)); }
    static constexpr Colour clear = -2;

    friend bool operator==(const Raster& one, const Raster& other) { return one.pixels_ == other.pixels_; }

    PixelSize size() const override { return size_; }
    std::unique_ptr<Canvas> createSimilar(PixelSize size, std::optional<Colour> ground) const override;
    void clip(const PixelRect& block) override { clip_ = block.intersected(bounds()); }
    void fill(const PixelRect& block, Colour colour) override;
    void fill(const Path& path, const Transform& toPixels, Colour colour) override;
    void fill(const Path& path, const Transform& toPixels, const Canvas& texture, PixelPoint corner) override;
    void stroke(const Path& path, const Transform& toPixels, const Pen& pen) override;
    void draw(const Canvas& image, const PixelRect& block, PixelPoint at, Flip flip) override;

private:
    std::size_t index(PixelPoint pixel) const;
    /// Paints the pixels of a block, or inside a path, in the colours that `source` returns for them.
    template<class Source>
    void paint(const PixelRect& block, const Source& source);
    template<class Source>
    void paintInside(const Path& path, const Transform& toPixels, const Source& source);

    PixelSize size_;
    PixelRect clip_;
    std::vector<Colour> pixels_;
};

} // namespace tumble
