#pragma once

#include "platform/base/NonMovable.h"
#include "platform/base/Pixels.h"

namespace tumble {

struct CaptionFont;

/// A control as a window shows it.
class ControlView : private NonMovable {
public:
    virtual ~ControlView() = default;

    /// Moves it to a block of its container's pixels.
    virtual void place(const PixelRect& pixels) = 0;
    /// Shows the control's caption and value at a scale.
    virtual void update(double scale) = 0;

    // Of a control that shows its caption: the size that the caption may have, if it is other than usual, and its font.
    virtual PixelSize captionSize(PixelSize usual) const { return usual; }
    virtual void setFont(const CaptionFont& /*font*/) {}
};

} // namespace tumble
