#pragma once

#include "platform/forms/Keys.h"
#include "platform/input/MouseCapture.h"
#include "platform/input/SpatialNavigation.h"

#include <cstdint>
#include <optional>

namespace tumble {

/// The keyboard's pointer over a picture box, of which the box is told as of the mouse. While the box takes no
/// input, keys and the mouse do nothing; while the mouse holds a button, keys do nothing.
///
/// - Arrow: to the best stop in its direction; with Shift ten unscaled pixels on, with Ctrl and Shift one.
/// - Home, Page Up, End, Page Down: to the stop nearest to a corner, as they lie on the keypad.
/// - Space: presses the left button; pressed again, releases it.
/// - F, Menu, Shift+F10: press and release the right button, and then the left one if Space holds it.
///
/// The first key only shows the pointer. The mouse hides it: by a press, or when it moves by more than a few pixels.
class KeyboardPointer {
public:
    /// The hand outlives the pointer. The mouse acts on the hand by way of the pointer.
    explicit KeyboardPointer(MouseCapture& capture) : capture_(capture) {}

    /// Whether the key, with those held with it, is one of the pointer's.
    bool key(const KeyPress& press);

    // What the mouse does; as for a capture. A press releases what Space holds first.
    void press(std::int16_t Button, std::int16_t Shift, Point at);
    void move(std::int16_t Button, std::int16_t Shift, Point at);
    void release(std::int16_t Button, std::int16_t Shift, Point at) { capture_.release(Button, Shift, at); }

    /// What marks the pointer while it shows.
    std::optional<KeyboardCursor> cursor() const;

private:
    bool holds() const { return bySpace_ && capture_.holds(); }
    Rect part() const;
    std::vector<Point> stopsNow() const;
    Point goal(const KeyPress& press) const;
    void show();
    void moveTo(Point at, std::int16_t Shift);
    void click(std::int16_t Shift);
    void letGo(std::int16_t Shift);

    MouseCapture& capture_;
    std::optional<Point> at_; // where it is or was; none at first
    bool shows_ = false;
    bool bySpace_ = false;       // what the hand holds was pressed by Space, not by the mouse
    std::optional<Point> mouse_; // where the mouse rests while the pointer shows
};

} // namespace tumble
