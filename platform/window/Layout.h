#pragma once

#include "platform/base/Pixels.h"
#include "platform/forms/Form.h"

namespace tumble {

// A desktop places windows and controls in pixels of its own, device pixels or larger ones. The scale is the number of
// them for 15 twips, the ratio the number of device pixels for each.

/// The size of a form at scale 1, in pixels.
struct FormSize {
    /// In twips.
    FormSize(float Width, float Height);

    PixelSize at(double scale) const;
    /// The largest scale at which it fits.
    double scaleToFit(double availableWidth, double availableHeight) const;

    double width;
    double height;
};

/// Clamps a scale to those that can be shown at a ratio.
double showable(double scale, double ratio);

/// The scale and place of a form in its window.
struct Layout {
    double scale = 1;
    PixelRect content{}; // in the window

    /// The pixels of a place in its container.
    PixelRect pixels(const Place& place) const;
    /// A length in twips that comprises so many pixels.
    float twips(int pixels) const;
};

/// The form as large as fits the window, in its middle.
Layout layoutOf(const FormSize& form, PixelSize window, double ratio);

/// The place that a control has in a window. An option button shows no border: its caption may use half of the space to
/// its neighbours above and below, and some of the space on its right.
Place allottedPlace(const Control& control);
Place allottedPlace(const OptionButton& option);

// At scale 1.
inline constexpr int frameCaptionHeight = 16;
inline constexpr int buttonIconSize = 32;

} // namespace tumble
