#pragma once

#include "platform/input/KeyboardPointer.h"
#include "platform/input/MouseCapture.h"
#include "platform/input/TouchGesture.h"
#include "platform/paint/DisplayListView.h"

#include <cstdint>

namespace tumble {

/// A picture box as a window shows it, whatever the window is made of, with the input that the box receives.
class SurfaceView : private NonMovable {
public:
    /// The cache outlives the view; so does the box, or `detach` is called.
    SurfaceView(PictureBox& box, PictureCache& pictures) : capture_(box), shown_(box.displayList(), pictures) {}
    virtual ~SurfaceView() = default;

    /// Null once detached.
    const PictureBox* box() const { return capture_.box(); }

    /// Brings what was painted to the screen at once.
    virtual void showNow() = 0;
    /// A modal window over this one has closed; it may have opened while a button was held.
    virtual void inputUnblocked() { capture_.inputUnblocked(); }

    /// A button went down or up, or, with 0, the mouse moved; `held` is the sum of those that are down afterwards.
    /// `Shift`: the modifier keys.
    void mouse(std::int16_t changed, std::int16_t held, std::int16_t Shift, Point at);
    /// As for a gesture.
    void touch(TouchEvent event, int finger, Point at, float startDragDistance) {
        gesture_.handle(event, finger, at, startDragDistance);
    }
    /// Whether the key is one of the keyboard's pointer.
    bool key(const KeyPress& press) { return box() != nullptr && box()->listens() && pointer_.key(press); }
    /// The box receives nothing from now on and may be destroyed; what shows stays.
    void detach() { capture_.detach(); }

protected:
    MouseCapture capture_;
    KeyboardPointer pointer_{capture_};
    TouchGesture gesture_{pointer_};
    DisplayListView shown_;
};

} // namespace tumble
