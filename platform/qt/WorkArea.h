#pragma once

#include "platform/window/Layout.h"

#include <optional>

class QScreen;

namespace tumble {

/// The widths of the frame that the windowing system puts around a window.
struct WindowFrame {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// The part of a screen that a window's content may have: without the screen's panels and the window's frame, in
/// logical pixels.
class WorkArea {
public:
    /// `available` is what the panels leave of a screen of the `whole` size. A frame that is not known yet counts as a
    /// usual one.
    WorkArea(const PixelRect& available, PixelSize whole, double ratio, const std::optional<WindowFrame>& frame);
    WorkArea(const QScreen& screen, const std::optional<WindowFrame>& frame);

    /// The place for the content of the largest window.
    const PixelRect& area() const { return area_; }
    /// The largest scale at which a form fits.
    double largestScale(const FormSize& form) const;
    /// The least scale that a window can be given: 1, or less on a screen that is too small for that.
    double leastScale(const FormSize& form) const;
    /// The scale at which a form opens: the largest in steps of an eighth at which it takes no more than four fifths of
    /// the screen, if that is more than the least.
    double openingScale(const FormSize& form) const;
    /// The place for a content of that size in the middle of another place, moved into the area. One that is too large
    /// begins where the area does.
    PixelRect place(PixelSize content, const PixelRect& around) const;

private:
    PixelRect area_;
    PixelSize whole_;
    double ratio_;
};

} // namespace tumble
