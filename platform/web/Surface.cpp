#include "platform/web/Surface.h"

#include "platform/web/Page.h"

#include <array>
#include <cstddef>

namespace tumble {

namespace {

// By a browser's numbers: left, middle, right. In its sum of buttons each counts as its code.
constexpr std::array<std::int16_t, 3> buttonCodes{1, 4, 2};
constexpr int allButtons = 7;

constexpr float startDragDistance = 10 * twipsPerPixel;

} // namespace

Surface::Surface(PictureBox& box, int canvas, int ring, PictureCache& pictures)
    : box_(&box),
      hand_(box),
      shown_(box.painting(), pictures),
      element_(canvas),
      canvas_(canvas),
      ringElement_(ring),
      ringCanvas_(ring) {}

void Surface::layOut(const Layout& layout) {
    place_ = layout.pixels(box_->place());
    scale_ = PixelScale(layout.scale);
    if (canvas_.size() != place_.size()) {
        canvas_.resize(place_.size());
        shown_.forget();
    }
    shownRing_.reset();
}

void Surface::show() {
    if (box_ != nullptr && !place_.empty()) {
        shown_.bringUpToDate(canvas_, box_->painting(), scale_);
        showRing();
    }
}

void Surface::showRing() {
    const std::optional<Ring> ring = pointer_.ring();
    if (ring == shownRing_) {
        return;
    }
    shownRing_ = ring;
    page_property(ringElement_, "hidden", !ring);
    if (ring) {
        const PixelRect block = ringPixels(*ring, scale_);
        ringCanvas_.resize(block.size());
        paintRing(ringCanvas_, ring->holds, scale_);
        page_place(ringElement_, place_.left + block.left, place_.top + block.top, block.width(), block.height());
    }
}

// While one button is down, a browser tells of another as of a move.
void Surface::pointer(const PointerReport& report) {
    const auto& [event, touches, pointer, button, buttons, Shift, x, y] = report;
    const Point at{scale_.twips(x), scale_.twips(y)};
    if (event == PointerEvent::Cancel) {
        letGo();
    } else if (touches) {
        event == PointerEvent::Down   ? finger_.touch(pointer, at, startDragDistance)
        : event == PointerEvent::Move ? finger_.move(pointer, at)
                                      : finger_.lift(pointer, at);
    } else if (button < 0) {
        pointer_.move(static_cast<std::int16_t>(buttons & allButtons), Shift, at);
    } else if (button < static_cast<int>(buttonCodes.size())) {
        const std::int16_t code = buttonCodes.at(static_cast<std::size_t>(button));
        (buttons & code) != 0 ? pointer_.press(code, Shift, at) : pointer_.release(code, Shift, at);
    }
}

void Surface::letGo() {
    finger_.cancel();
    hand_.letGo();
}

void Surface::retire() {
    box_ = nullptr;
    hand_.retire();
}

} // namespace tumble
