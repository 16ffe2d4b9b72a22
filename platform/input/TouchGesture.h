#pragma once

#include "platform/input/KeyboardPointer.h"

#include <optional>

namespace tumble {

enum class TouchEvent { Touch, Move, Lift, LongPress };

/// A finger at a picture box, of which the box is told as of the mouse. What a touch means shows later: a move by the
/// start-drag distance makes it a press at the first place, the moves that follow and a release; a lift before that, a
/// press and a release; the end of the long-press time before both, a press and a release of the right button, and
/// whatever the finger does then is nothing. While one finger touches, others do nothing. (A pen acts as the mouse, its
/// barrel button as the right one.)
class TouchGesture {
public:
    /// Acts by way of the pointer, as the mouse does; it outlives the finger.
    explicit TouchGesture(KeyboardPointer& mouse) : mouse_(mouse) {}

    // Fingers by their numbers, from touch to lift; places and the distance in twips.
    void touch(int number, Point at, float startDragDistance);
    void move(int number, Point at);
    void lift(int number, Point at);
    /// The toolkit has taken the touch away: nothing was meant, and a drag ends where it is.
    void cancel();
    /// A finger has touched for the long-press time.
    void longPress();

    /// Whether the end of the long-press time would still mean something.
    bool waits() const { return state_ == State::Waits; }

private:
    enum class State { Waits, Drags, Done };

    std::optional<int> number_; // of the finger that touches
    State state_ = State::Done;
    Point at_; // where it touched; in a drag, where it was last
    float startDragDistance_ = 0;
    KeyboardPointer& mouse_;
};

} // namespace tumble
