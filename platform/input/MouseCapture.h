#pragma once

#include "platform/forms/Controls.h"

#include <cstdint>

namespace tumble {

/// Mouse capture of a picture box: decides which mouse events the box receives, whatever the desktop.
///
/// - A button that is pressed on the box is held until it is released, wherever the mouse is meanwhile.
/// - While a button is held and the mouse leaves the box's drag bounds, the box receives the last place inside on the
///   straight way and the next one beyond, and then no move until the mouse is back: what is dragged stays under the
///   mouse.
/// - A move with a held button up means that its release was lost: the box receives the release at the last place. A
///   button that was held while the form was blocked is the exception: it stays held until the next release.
/// - While the form takes no input, the box receives nothing.
class MouseCapture {
public:
    /// The box outlives the capture, or `detach` is called.
    explicit MouseCapture(PictureBox& box) : box_(&box) {}

    // Buttons, shift keys and places as the box's handlers get them.
    void press(std::int16_t Button, std::int16_t Shift, Point at);
    void move(std::int16_t Button, std::int16_t Shift, Point at);
    void release(std::int16_t Button, std::int16_t Shift, Point at);
    /// Releases what is held at the last place that the box received.
    void releaseAll() { releaseButtons(held_); }
    /// The form was blocked until now.
    void inputUnblocked() { mayBeUp_ = held_; }

    /// Null once detached.
    const PictureBox* box() const { return box_; }
    /// Whether the box receives anything.
    bool takesInput() const { return box_ != nullptr && box_->takesInput(); }
    /// Whether a button is held.
    bool holds() const { return held_ != 0; }
    /// The box receives nothing from now on and may be destroyed. May be called by a handler.
    void detach() { box_ = nullptr; }

private:
    void releaseButtons(int buttons);
    void send(PictureBox::MouseEvent PictureBox::*event, std::int16_t Button, std::int16_t Shift, Point at);

    PictureBox* box_;
    int held_ = 0;    // the sum of the buttons
    int mayBeUp_ = 0; // of these, those whose release the form's block may have hidden
    Point last_;
};

} // namespace tumble
