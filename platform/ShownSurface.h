#pragma once

#include "platform/Finger.h"
#include "platform/Hand.h"
#include "platform/KeyboardPointer.h"
#include "platform/ShownPainting.h"

#include <cstdint>

namespace tumble {

/// A picture box as a window shows it, whatever the window is made of, and what mouse, keys and fingers do to it.
class ShownSurface : private Pinned {
public:
    /// The cache outlives the surface; so does the box, or `retire` is called.
    ShownSurface(PictureBox& box, PictureCache& pictures) : hand_(box), shown_(box.painting(), pictures) {}
    virtual ~ShownSurface() = default;

    /// Null once retired.
    const PictureBox* box() const { return hand_.box(); }

    /// Brings what was painted to the screen at once.
    virtual void showNow() = 0;
    /// A message box or modal window over this one has closed, and may have come up while a button was held.
    virtual void inputIsBack() {}

    /// The button that goes down or up, 0 for a move, and the sum of those that are down afterwards, as a box's
    /// handlers get them; the keys held with them.
    void mouse(std::int16_t changed, std::int16_t held, std::int16_t Shift, Point at);
    /// A finger by its number; the start-drag distance in twips.
    void finger(FingerEvent event, int number, Point at, float startDragDistance);
    /// Whether the key is one of the pointer's.
    bool key(const KeyPress& press) { return box() != nullptr && box()->listens() && pointer_.key(press); }
    /// The button or finger that holds something is out of sight: it counts as let go where it was last.
    void letGo();
    /// The box may be gone from now on; what shows stays.
    void retire() { hand_.retire(); }

protected:
    Hand hand_;
    KeyboardPointer pointer_{hand_};
    Finger finger_{pointer_};
    ShownPainting shown_;
};

} // namespace tumble
