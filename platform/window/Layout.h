#pragma once

#include "platform/base/Pixels.h"
#include "platform/forms/Form.h"

namespace tumble {

// Windows and controls are placed in pixels of the desktop's choosing, the device's own or larger ones. A scale is how
// many of them 15 twips are, a ratio how many of the device's each of them is.

/// How large a form is at scale 1.
struct FormSize {
    /// In twips.
    FormSize(float Width, float Height);

    PixelSize at(double scale) const;
    /// The largest scale at which it fits.
    double scaleToFit(double roomWidth, double roomHeight) const;

    double width;
    double height;
};

/// Brings a scale into what can be shown at a ratio.
double showable(double scale, double ratio);

/// How a window shows its form.
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

/// The place that a desktop gives to a control. An option button shows no border: its caption may use half of the space
/// to its neighbours above and below, and some of that on its right.
Place allottedPlace(const Control& control);
Place allottedPlace(const OptionButton& option);

// At scale 1.
inline constexpr int frameCaptionHeight = 16;
inline constexpr int buttonIconSize = 32;

} // namespace tumble
