#include "platform/window/SurfaceView.h"

namespace tumble {

void SurfaceView::mouse(std::int16_t changed, std::int16_t held, std::int16_t Shift, Point at) {
    const auto keys = static_cast<std::int16_t>(Shift & (shiftKey | controlKey | altKey));
    if (changed == 0) {
        pointer_.move(held, keys, at);
    } else if ((held & changed) != 0) {
        pointer_.press(changed, keys, at);
    } else {
        pointer_.release(changed, keys, at);
    }
}

} // namespace tumble
