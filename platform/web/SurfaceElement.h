#pragma once

#include "platform/web/WebCanvas.h"
#include "platform/window/SurfaceView.h"

#include <optional>

namespace tumble {

/// Shows a picture box's painting on a canvas element, in the exact pixels of the screen, and the mark of the keys'
/// pointer on another above it.
class SurfaceElement : public SurfaceView {
public:
    SurfaceElement(PictureBox& box, int element, PictureCache& pictures);

    int element() const { return canvas_.element(); }
    /// A place in pixels of the canvas.
    Point twips(double x, double y) const { return {scale_.twips(x), scale_.twips(y)}; }

    /// The element has its place; it shows the painting at the new scale with `showNow`.
    void layOut(PixelSize size, PixelScale scale);
    void showNow() override;

private:
    PixelScale scale_{1};
    WebCanvas canvas_;
    WebCanvas mark_;
    std::optional<KeyboardCursor> cursor_; // as it shows
};

} // namespace tumble
