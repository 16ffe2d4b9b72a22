#pragma once

#include "platform/base/PixelScale.h"
#include "platform/paint/Canvas.h"

namespace tumble {

/// The keyboard pointer's place in twips of the surface, and whether it holds a button.
struct KeyboardCursor {
    Point at;
    bool holds = false;
    friend bool operator==(const KeyboardCursor&, const KeyboardCursor&) = default;
};

/// The pixels that its mark covers: a square around the pixel of its place.
PixelRect cursorPixels(const KeyboardCursor& cursor, PixelScale scale);

/// Paints its mark on a transparent canvas of that size: a light ring between dark ones, visible on every ground; while
/// it holds a button, a dark disc with a light dot.
void paintCursor(Canvas& canvas, bool holds, PixelScale scale);

} // namespace tumble
