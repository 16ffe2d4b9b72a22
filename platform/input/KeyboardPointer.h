#pragma once

#include "platform/forms/Keys.h"
#include "platform/input/MouseCapture.h"
#include "platform/input/SpatialNavigation.h"

#include <cstdint>
#include <optional>

namespace tumble {

/// The keyboard's pointer over a picture box: the game handles mouse events only, and this synthesizes them from keys.
/// While the box takes no input, keys and the mouse do nothing; while the mouse holds a button, keys do nothing.
///
/// - Arrow: to the best stop in its direction; with Shift ten unscaled pixels on, with Ctrl and Shift one.
/// - Home, Page Up, End, Page Down: to the stop nearest to a corner, as they lie on the keypad.
/// - Space: presses the left button; pressed again, releases it.
/// - F, Menu, Shift+F10: press and release the right button, and then release the left one if Space holds it.
///
/// The first key only shows the pointer. A press of the mouse, or a move by more than a few pixels, hides it.
class KeyboardPointer {
public:
    /// The capture outlives the pointer. The mouse reaches the capture through the pointer.
    explicit KeyboardPointer(MouseCapture& capture) : capture_(capture) {}

    /// Whether the key, with its modifiers, is one of the pointer's.
    bool key(const KeyPress& press);

    // Mouse events, as for the capture. A press first releases what Space holds.
    void press(std::int16_t Button, std::int16_t Shift, Point at);
    void move(std::int16_t Button, std::int16_t Shift, Point at);
    void release(std::int16_t Button, std::int16_t Shift, Point at) { capture_.release(Button, Shift, at); }

    /// Nothing while the pointer does not show.
    std::optional<KeyboardCursor> cursor() const;

private:
    bool holds() const { return bySpace_ && capture_.holds(); }
    Rect bounds() const;
    std::vector<Point> currentStops() const;
    Point destination(const KeyPress& press) const;
    void show();
    void moveTo(Point at, std::int16_t Shift);
    void click(std::int16_t Shift);
    void release(std::int16_t Shift);

    MouseCapture& capture_;
    std::optional<Point> at_; // where it is or was; none at first
    bool shows_ = false;
    bool bySpace_ = false;       // what the capture holds was pressed by Space, not by the mouse
    std::optional<Point> mouse_; // where the mouse rests while the pointer shows
};

} // namespace tumble
