#pragma once

#include "platform/Finger.h"
#include "platform/Hand.h"
#include "platform/KeyboardPointer.h"
#include "platform/Layout.h"
#include "platform/ShownPainting.h"
#include "platform/web/WebCanvas.h"

#include <cstdint>
#include <optional>

namespace tumble {

enum class PointerEvent { Down, Move, Up, Cancel };

/// What a browser tells of the mouse, a pen or a finger.
struct PointerReport {
    PointerEvent event;
    bool touches;       // a finger does
    int pointer;        // its number
    int button;         // the one that changed; -1: none
    int buttons;        // those that are down after it
    std::int16_t Shift; // 1 Shift, 2 Ctrl, 4 Alt
    double x;           // in pixels of the canvas
    double y;
};

/// Shows a picture box's painting on a canvas element, in the exact pixels of the screen, and reports the mouse,
/// fingers and the keyboard's pointer to it.
class Surface : private Pinned {
public:
    /// `ring` is the canvas that marks the keyboard's pointer.
    Surface(PictureBox& box, int canvas, int ring, PictureCache& pictures);

    /// The element.
    int canvas() const { return element_; }

    /// The canvas has its place; it is to be `show`n.
    void layOut(const Layout& layout);
    /// Brings what was painted to the canvas.
    void show();
    /// The window's colour is another.
    void recolour() { shown_.forget(); }

    void pointer(const PointerReport& report);
    void longPress() { finger_.longPress(); }
    bool key(const KeyPress& press) { return pointer_.key(press); }
    void letGo();
    /// The box may be gone from now on.
    void retire();

private:
    void showRing();

    PictureBox* box_; // null once retired
    Hand hand_;
    KeyboardPointer pointer_{hand_};
    Finger finger_{pointer_};
    ShownPainting shown_;
    int element_;
    WebCanvas canvas_;
    PixelRect place_;
    PixelScale scale_{1};
    int ringElement_;
    WebCanvas ringCanvas_;
    std::optional<Ring> shownRing_;
};

} // namespace tumble
