#pragma once

#include "platform/paint/Canvas.h"
#include "platform/web/Page.h"

namespace tumble {

/// A canvas element of the page, or one that never shows. Draws none but its like. The window's colour is no paint: the
/// page shows there.
class WebCanvas : public Canvas {
public:
    /// Still without a size.
    explicit WebCanvas(int element) : element_(element) {}
    ~WebCanvas() override { page_remove(element_); }

    int element() const { return element_; }
    /// Empties it.
    void resize(PixelSize size);

    PixelSize size() const override { return size_; }
    std::unique_ptr<Canvas> createSimilar(PixelSize size, std::optional<Colour> ground) const override;
    void clip(const PixelRect& block) override;
    void fill(const PixelRect& block, Colour colour) override;
    void fill(const Path& path, const Transform& toPixels, Colour colour) override;
    void fill(const Path& path, const Transform& toPixels, const Canvas& texture, PixelPoint corner) override;
    void stroke(const Path& path, const Transform& toPixels, const Pen& pen) override;
    void draw(const Canvas& image, const PixelRect& block, PixelPoint at, Flip flip) override;

private:
    /// Fills, or strokes with a pen of a width; of the colour of the window, with the texture that was set.
    void paint(const Path& path, const Transform& toPixels, Colour colour, double width = 0,
               bool isRound = false) const;

    int element_;
    PixelSize size_;
};

} // namespace tumble
