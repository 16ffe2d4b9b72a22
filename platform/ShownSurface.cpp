#include "platform/ShownSurface.h"

namespace tumble {

void ShownSurface::mouse(std::int16_t changed, std::int16_t held, std::int16_t Shift, Point at) {
    const auto keys = static_cast<std::int16_t>(Shift & (shiftKey | controlKey | altKey));
    if (changed == 0) {
        pointer_.move(held, keys, at);
    } else if ((held & changed) != 0) {
        pointer_.press(changed, keys, at);
    } else {
        pointer_.release(changed, keys, at);
    }
}

void ShownSurface::finger(FingerEvent event, int number, Point at, float startDragDistance) {
    switch (event) {
    case FingerEvent::Touch:
        finger_.touch(number, at, startDragDistance);
        break;
    case FingerEvent::Move:
        finger_.move(number, at);
        break;
    case FingerEvent::Lift:
        finger_.lift(number, at);
        break;
    case FingerEvent::LongPress:
        finger_.longPress();
        break;
    }
}

void ShownSurface::letGo() {
    finger_.cancel();
    hand_.letGo();
}

} // namespace tumble
