#pragma once

#include "platform/paint/Canvas.h"
#include "platform/web/Page.h"

namespace tumble {

/// A canvas element, in the document or not. `windowColour` stays transparent, so that the page shows through.
class WebCanvas : public Canvas {
public:
    /// Empty until it is resized; the destructor removes the element.
    explicit WebCanvas(int element) : element_(element) {}
    ~WebCanvas() override { page_remove(element_); }

    int element() const { return element_; }
    /// Clears the canvas.
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
    /// Strokes with a pen of `width`, or fills when that is 0; `windowColour` stands for the texture set last.
    void paint(const Path& path, const Transform& toPixels, Colour colour, double width = 0,
               bool isRound = false) const;

    int element_;
    PixelSize size_;
};

} // namespace tumble
