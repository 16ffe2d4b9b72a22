#include "platform/web/Surface.h"

#include "platform/web/Page.h"

#include <array>

namespace tumble {

namespace {

struct Button {
    int bit; // in a browser's sum of buttons
    std::int16_t code;
};

// By a browser's numbers: left, middle, right.
constexpr std::array<Button, 3> mouseButtons{{{1, 1}, {4, 4}, {2, 2}}};
constexpr int heldButtons = 7; // a browser sums the three up as the box's handlers do

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
void Surface::mouse(const MouseReport& report) {
    const auto& [button, buttons, Shift, x, y] = report;
    if (button < 0) {
        pointer_.move(static_cast<std::int16_t>(buttons & heldButtons), Shift, twips(x, y));
    } else if (button < static_cast<int>(mouseButtons.size())) {
        const auto& [bit, code] = mouseButtons.at(static_cast<std::size_t>(button));
        if ((buttons & bit) != 0) {
            pointer_.press(code, Shift, twips(x, y));
        } else {
            pointer_.release(code, Shift, twips(x, y));
        }
    }
}

void Surface::touch(Touch touch, int finger, double x, double y) {
    const Point at = twips(x, y);
    switch (touch) {
    case Touch::Down:
        finger_.touch(finger, at, startDragDistance);
        break;
    case Touch::Move:
        finger_.move(finger, at);
        break;
    case Touch::Up:
        finger_.lift(finger, at);
        break;
    case Touch::Cancel:
        finger_.cancel();
        hand_.letGo();
        break;
    }
}

void Surface::retire() {
    box_ = nullptr;
    hand_.retire();
}

} // namespace tumble
