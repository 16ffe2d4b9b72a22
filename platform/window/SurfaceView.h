#pragma once

#include "platform/input/KeyboardPointer.h"
#include "platform/input/MouseCapture.h"
#include "platform/input/TouchGesture.h"
#include "platform/paint/DisplayListView.h"

#include <cstdint>

namespace tumble {

/// A picture box as a window shows it, whatever the window is made of, and what mouse, keys and fingers do to it.
class SurfaceView : private NonMovable {
public:
    /// The cache outlives the surface; so does the box, or `detach` is called.
    SurfaceView(PictureBox& box, PictureCache& pictures) : capture_(box), shown_(box.displayList(), pictures) {}
    virtual ~SurfaceView() = default;

    /// Null once retired.
    const PictureBox* box() const { return capture_.box(); }

    /// Brings what was painted to the screen at once.
    virtual void showNow() = 0;
    /// A message box or modal window over this one has closed, and may have come up while a button was held.
    virtual void inputUnblocked() {}

    /// The button that goes down or up, 0 for a move, and the sum of those that are down afterwards, as a box's
    /// handlers get them; the keys held with them.
    void mouse(std::int16_t changed, std::int16_t held, std::int16_t Shift, Point at);
    /// A finger by its number; the start-drag distance in twips.
    void finger(TouchEvent event, int number, Point at, float startDragDistance);
    /// Whether the key is one of the pointer's.
    bool key(const KeyPress& press) { return box() != nullptr && box()->listens() && pointer_.key(press); }
    /// The button or finger that holds something is out of sight: it counts as let go where it was last.
    void letGo();
    /// The box may be gone from now on; what shows stays.
    void detach() { capture_.detach(); }

protected:
    MouseCapture capture_;
    KeyboardPointer pointer_{capture_};
    TouchGesture gesture_{pointer_};
    DisplayListView shown_;
};

} // namespace tumble
