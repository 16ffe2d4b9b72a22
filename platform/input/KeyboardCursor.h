#pragma once

#include "platform/base/PixelScale.h"
#include "platform/paint/Canvas.h"

namespace tumble {

/// The mark of the keyboard's pointer: where it lies, in twips of the surface, and whether the pointer holds a button.
struct KeyboardCursor {
    Point at;
    bool holds = false;
    friend bool operator==(const KeyboardCursor&, const KeyboardCursor&) = default;
};

/// The pixels that a desktop paints it over: as many to each side of the one in which it lies.
PixelRect cursorPixels(const KeyboardCursor& cursor, PixelScale scale);

/// Paints it on a transparent canvas of their size: a light line between dark ones, to be seen on every ground; while
/// it holds, a dark disc with a light dot in it.
void paintCursor(Canvas& canvas, bool holds, PixelScale scale);

} // namespace tumble
