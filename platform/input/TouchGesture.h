#pragma once

#include "platform/input/KeyboardPointer.h"

#include <optional>

namespace tumble {

/// A finger touches, moves or lifts; it has touched for the long-press time; or the toolkit takes the touch away.
enum class TouchEvent { Begin, Move, End, LongPress, Cancel };

/// Synthesizes the mouse from a finger at a picture box, once it shows what the touch means:
///
/// - moved by the start-drag distance: a drag with the left button, from the first place to where the finger lifts;
/// - lifted before that: a click;
/// - touched for the long-press time before either: a click of the right button, and nothing until the finger lifts;
/// - taken away: nothing, or the end of the drag.
///
/// While one finger touches, others do nothing.
class TouchGesture {
public:
    /// Acts on the pointer, which outlives the gesture.
    explicit TouchGesture(KeyboardPointer& pointer) : pointer_(pointer) {}

    /// Fingers have numbers, of which a long press and a cancel need none; place and start-drag distance are in twips.
    void handle(TouchEvent event, int finger, Point at, float startDragDistance);

    /// Whether the end of the long-press time would still mean something.
    bool waits() const { return state_ == State::Waits; }

private:
    enum class State { Done, Waits, Drags };

    void move(Point at, float startDragDistance);
    void end(bool isClick, Point at);
    void click(std::int16_t button);

    std::optional<int> finger_; // that touches
    State state_ = State::Done;
    Point at_; // where it touched; in a drag, where it was last
    KeyboardPointer& pointer_;
};

} // namespace tumble
