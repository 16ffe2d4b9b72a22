#include "platform/input/MouseCapture.h"

#include "platform/forms/Mouse.h"

#include <algorithm>
#include <cmath>

namespace tumble {

namespace {

/// Where the straight way from a place inside to one outside crosses the edge, in whole twips: the way is clipped at
/// one edge after the other.
Point lastInside(const Rect& bounds, Point from, Point to) {
    const auto between = [](float a, float b, double share) {
        return a + static_cast<float>(std::nearbyint(share * (static_cast<double>(b) - a)));
    };
    if (const float x = std::clamp(to.x, bounds.left, bounds.right); x != to.x) {
        to = {x, between(from.y, to.y, (static_cast<double>(x) - from.x) / (static_cast<double>(to.x) - from.x))};
    }
    if (const float y = std::clamp(to.y, bounds.top, bounds.bottom); y != to.y) {
        to = {between(from.x, to.x, (static_cast<double>(y) - from.y) / (static_cast<double>(to.y) - from.y)), y};
    }
    return to;
}

/// The next whole twip from `from` on the way to `to`, or `from` itself.
float towards(float from, float to) {
    return to > from ? from + 1 : to < from ? from - 1 : from;
}

} // namespace

void MouseCapture::press(std::int16_t Button, std::int16_t Shift, Point at) {
    if (takesInput()) {
        held_ |= Button;
        mayBeUp_ &= ~Button;
        send(&PictureBox::MouseDown, Button, Shift, at);
    }
}

void MouseCapture::move(std::int16_t Button, std::int16_t Shift, Point at) {
    if (!takesInput()) {
        return;
    }
    mayBeUp_ &= ~Button;
    releaseButtons(held_ & ~Button & ~mayBeUp_);
    if (!takesInput()) {
        return;
    }
    const Rect bounds = box_->dragBounds;
    if (!holds() || bounds.contains(at)) {
        send(&PictureBox::MouseMove, Button, Shift, at);
    } else if (bounds.contains(last_)) {
        const Point inside = lastInside(bounds, last_, at);
        send(&PictureBox::MouseMove, Button, Shift, inside);
        send(&PictureBox::MouseMove, Button, Shift, {towards(inside.x, at.x), towards(inside.y, at.y)});
    }
}

void MouseCapture::release(std::int16_t Button, std::int16_t Shift, Point at) {
    if (takesInput()) {
        held_ &= ~Button;
        mayBeUp_ &= held_;
        send(&PictureBox::MouseUp, Button, Shift, at);
    }
}

void MouseCapture::releaseButtons(int buttons) {
    for (const std::int16_t button : mouseButtons) {
        if ((buttons & button) != 0) {
            release(button, 0, last_);
        }
    }
}

void MouseCapture::send(PictureBox::MouseEvent PictureBox::*event, std::int16_t Button, std::int16_t Shift, Point at) {
    last_ = at;
    if (takesInput() && box_->*event) {
        (box_->*event)(Button, Shift, at.x, at.y);
    }
}

} // namespace tumble
