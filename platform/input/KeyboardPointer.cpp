#include "platform/input/KeyboardPointer.h"

#include "platform/forms/Mouse.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace tumble {

namespace {

constexpr float fewPixels = 4 * twipsPerPixel;

/// One step along an axis for an arrow, one along both for the key of a corner, none for others.
Point direction(Key key) {
    constexpr std::array<Point, 8> directions{{{-1, 0}, {0, -1}, {1, 0}, {0, 1}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}}};
    static_assert(Key::Left == Key{0} && Key::Down == Key{3} && Key::Home == Key{4} && Key::PageDown == Key{7});
    return key <= Key::PageDown ? directions.at(static_cast<std::size_t>(key)) : Point();
}

bool isArrow(Key key) {
    const auto [x, y] = direction(key);
    return (x == 0) != (y == 0);
}

bool isPointerKey(const KeyPress& press) {
    return press.key <= Key::F10 && !press.with(altKey | metaKey) &&
           (!press.with(controlKey) || (press.with(shiftKey) && isArrow(press.key))) &&
           (press.key != Key::F10 || press.with(shiftKey));
}

} // namespace

bool KeyboardPointer::key(const KeyPress& press) {
    if (!isPointerKey(press)) {
        return false;
    }
    const bool moves = direction(press.key) != Point();
    const bool mouseHolds = capture_.holds() && !bySpace_;
    if (!capture_.takesInput() || mouseHolds || (press.repeated && actsOnce(press.key))) {
        return true;
    }
    const std::int16_t Shift = press.Shift;
    if (!shows_) {
        show();
        moveTo(*at_, Shift);
    } else if (moves) {
        if (const Point to = destination(press); to != *at_) {
            moveTo(to, Shift);
        }
    } else if (press.key != Key::Space) {
        click(Shift);
    } else if (holds()) {
        release(Shift);
    } else {
        bySpace_ = true;
        capture_.press(leftButton, Shift, *at_);
    }
    return true;
}

void KeyboardPointer::press(std::int16_t Button, std::int16_t Shift, Point at) {
    if (!capture_.takesInput()) {
        return;
    }
    shows_ = false;
    if (holds()) {
        capture_.releaseAll(); // where the mouse may have carried it since
    }
    bySpace_ = false;
    capture_.press(Button, Shift, at);
}

void KeyboardPointer::move(std::int16_t Button, std::int16_t Shift, Point at) {
    if (shows_ && capture_.takesInput()) {
        mouse_ = mouse_.value_or(at);
        shows_ = std::hypot(at.x - mouse_->x, at.y - mouse_->y) <= fewPixels;
    }
    if (!shows_) {
        capture_.move(holds() ? static_cast<std::int16_t>(Button | leftButton) : Button, Shift, at);
    }
}

std::optional<KeyboardCursor> KeyboardPointer::cursor() const {
    return shows_ ? std::optional(KeyboardCursor{*at_, holds()}) : std::nullopt;
}

Rect KeyboardPointer::bounds() const {
    return capture_.box()->dragBounds.intersected(capture_.box()->displayList().bounds());
}

std::vector<Point> KeyboardPointer::currentStops() const {
    return stops(capture_.box()->displayList(), bounds(), cursor());
}

Point KeyboardPointer::destination(const KeyPress& press) const {
    const auto [x, y] = direction(press.key);
    const Rect in = bounds();
    if (!isArrow(press.key)) {
        std::vector<Point> places = currentStops();
        places.push_back(*at_); // whose item is no stop
        return *stopNearest(places, {x < 0 ? in.left : in.right, y < 0 ? in.top : in.bottom});
    }
    if (!press.with(shiftKey)) {
        return stopTowards(currentStops(), *at_, {x, y}).value_or(*at_);
    }
    const float step = (press.with(controlKey) ? 1 : 10) * twipsPerPixel;
    return {std::max(in.left, std::min(at_->x + step * x, in.right)),
            std::max(in.top, std::min(at_->y + step * y, in.bottom))};
}

void KeyboardPointer::show() {
    const Rect in = bounds();
    const Point last = at_.value_or(Point{std::floor((in.left + in.right) / 2), std::floor((in.top + in.bottom) / 2)});
    at_ = stopNearest(currentStops(), last).value_or(last);
    shows_ = true;
    mouse_.reset();
}

void KeyboardPointer::moveTo(Point at, std::int16_t Shift) {
    at_ = at;
    capture_.move(holds() ? leftButton : 0, Shift, at);
}

// A release of any button ends what the game drags, so that the left one is held for nothing afterwards.
void KeyboardPointer::click(std::int16_t Shift) {
    capture_.press(rightButton, Shift, *at_);
    capture_.release(rightButton, Shift, *at_);
    if (holds()) {
        release(Shift);
    }
}

// Then a move, so that the box says what lies there now.
void KeyboardPointer::release(std::int16_t Shift) {
    capture_.release(leftButton, Shift, *at_);
    capture_.move(0, Shift, *at_);
}

} // namespace tumble
