#pragma once

#include "platform/forms/Controls.h"

#include <cstdint>

namespace tumble {

/// The hand at a picture box: what the box is told of the mouse, whatever the desktop. A button that goes down on the
/// box is held until it goes up again on it, wherever the pointer is meanwhile. While one is held and the pointer
/// leaves the box's reach, the box is told of the last place inside on the straight way and of the next one beyond, and
/// then of no move until the pointer is back: what the hand drags stays under it. Nothing is told while the form takes
/// no input.
class MouseCapture {
public:
    /// The box outlives the hand, or `detach` is called.
    explicit MouseCapture(PictureBox& box) : box_(&box) {}

    // Buttons, shift keys and places as the box's handlers get them.
    void press(std::int16_t Button, std::int16_t Shift, Point at);
    void move(std::int16_t Button, std::int16_t Shift, Point at);
    void release(std::int16_t Button, std::int16_t Shift, Point at);

    /// Null once the hand is retired.
    const PictureBox* box() const { return box_; }
    /// Whether the box is told of anything.
    bool takesInput() const { return box_ != nullptr && box_->takesInput(); }
    /// Whether the box takes a button for held.
    bool holds() const { return held_ != 0; }
    /// Releases what is held at the last place that the box was told of.
    void letGo();
    /// From now on nothing is told; the box may be gone. May be called by a handler.
    void detach() { box_ = nullptr; }

private:
    void tell(PictureBox::MouseEvent PictureBox::*event, std::int16_t Button, std::int16_t Shift, Point at);

    PictureBox* box_;
    int held_ = 0; // the sum of the buttons
    Point last_;
};

} // namespace tumble
