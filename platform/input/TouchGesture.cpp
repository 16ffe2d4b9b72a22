#include "platform/input/TouchGesture.h"

#include "platform/forms/Mouse.h"

#include <cmath>
#include <utility>

namespace tumble {

void TouchGesture::handle(TouchEvent event, int finger, Point at, float startDragDistance) {
    if (event == TouchEvent::Begin && !finger_) {
        finger_ = finger;
        state_ = State::Waits;
        at_ = at;
    } else if (event == TouchEvent::LongPress && waits()) {
        state_ = State::Done;
        click(rightButton);
    } else if (event == TouchEvent::Move && finger_ == finger) {
        move(at, startDragDistance);
    } else if (event == TouchEvent::End && finger_ == finger) {
        end(state_ == State::Waits, at);
    } else if (event == TouchEvent::Cancel) {
        end(false, at_);
    }
}

void TouchGesture::move(Point at, float startDragDistance) {
    if (waits() && std::hypot(at.x - at_.x, at.y - at_.y) >= startDragDistance) {
        state_ = State::Drags;
        pointer_.press(leftButton, 0, at_);
    }
    if (state_ == State::Drags) {
        at_ = at;
        pointer_.move(leftButton, 0, at);
    }
}

void TouchGesture::end(bool isClick, Point at) {
    finger_.reset();
    if (std::exchange(state_, State::Done) == State::Drags) {
        pointer_.release(leftButton, 0, at);
    } else if (isClick) {
        click(leftButton);
    }
}

void TouchGesture::click(std::int16_t button) {
    pointer_.press(button, 0, at_);
    pointer_.release(button, 0, at_);
}

} // namespace tumble
