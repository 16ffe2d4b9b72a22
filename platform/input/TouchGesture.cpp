#include "platform/input/TouchGesture.h"

#include <cmath>
#include <utility>

namespace tumble {

namespace {

constexpr std::int16_t leftButton = 1;
constexpr std::int16_t rightButton = 2;

} // namespace

void TouchGesture::touch(int number, Point at, float startDragDistance) {
    if (!number_) {
        number_ = number;
        state_ = State::Waits;
        at_ = at;
        startDragDistance_ = startDragDistance;
    }
}

void TouchGesture::move(int number, Point at) {
    if (number != number_) {
        return;
    }
    if (state_ == State::Waits && std::hypot(at.x - at_.x, at.y - at_.y) >= startDragDistance_) {
        state_ = State::Drags;
        mouse_.press(leftButton, 0, at_);
    }
    if (state_ == State::Drags) {
        at_ = at;
        mouse_.move(leftButton, 0, at);
    }
}

void TouchGesture::lift(int number, Point at) {
    if (number != number_) {
        return;
    }
    number_.reset();
    const State was = std::exchange(state_, State::Done);
    if (was == State::Waits) {
        mouse_.press(leftButton, 0, at_);
        mouse_.release(leftButton, 0, at_);
    } else if (was == State::Drags) {
        mouse_.release(leftButton, 0, at);
    }
}

void TouchGesture::cancel() {
    number_.reset();
    if (std::exchange(state_, State::Done) == State::Drags) {
        mouse_.release(leftButton, 0, at_);
    }
}

void TouchGesture::longPress() {
    if (waits()) {
        state_ = State::Done;
        mouse_.press(rightButton, 0, at_);
        mouse_.release(rightButton, 0, at_);
    }
}

} // namespace tumble
