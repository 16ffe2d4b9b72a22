#pragma once

#include "platform/window/Layout.h"

#include <optional>

namespace tumble {

/// The frame that the windowing system puts around a window.
struct WindowFrame {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// The room that a screen has for windows: without its panels, and without the frame of a window.
class WorkArea {
public:
    /// `available`: what the panels of the screen, which is `whole` in size, leave. Without a frame it reckons with a
    /// usual one.
    WorkArea(const PixelRect& available, PixelSize whole, double ratio, const std::optional<WindowFrame>& frame);

    /// The place for the content of the largest window.
    const PixelRect& area() const { return area_; }
    /// The largest scale at which a form fits.
    double largestScale(const FormSize& form) const;
    /// The scale below which a form need not be shown: 1, or on a small screen what it can hold.
    double leastScale(const FormSize& form) const;
    /// The scale at which a form opens: the largest in steps of an eighth at which it takes no more than four fifths of
    /// the screen, if that is more than the least.
    double openingScale(const FormSize& form) const;
    /// The place for a content of that size, in the middle of another as far as the room allows; one that is too large
    /// begins where the room does.
    PixelRect place(PixelSize content, const PixelRect& around) const;

private:
    PixelRect area_;
    PixelSize whole_;
    double ratio_;
};

} // namespace tumble
