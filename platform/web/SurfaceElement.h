#pragma once

#include "platform/web/WebCanvas.h"
#include "platform/window/SurfaceView.h"

#include <optional>

namespace tumble {

/// Shows a picture box on a canvas element, in the exact pixels of the screen, and the keyboard cursor on another one
/// above it.
class SurfaceElement : public SurfaceView {
public:
    SurfaceElement(PictureBox& box, int element, PictureCache& pictures);

    int element() const { return canvas_.element(); }
    /// A place in pixels of the canvas.
    Point twips(double x, double y) const { return {scale_.twips(x), scale_.twips(y)}; }

    /// The size and scale that `showNow` shows from now on.
    void layOut(PixelSize size, PixelScale scale);
    void showNow() override;

private:
    PixelScale scale_{1};
    WebCanvas canvas_;
    WebCanvas mark_;
    std::optional<KeyboardCursor> cursor_; // as it shows
};

} // namespace tumble
