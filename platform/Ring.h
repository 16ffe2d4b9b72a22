#pragma once

#include "platform/Canvas.h"
#include "platform/PixelScale.h"

namespace tumble {

/// The mark of the keyboard's pointer: where it lies, in twips of the surface, and whether the pointer holds a button.
struct Ring {
    Point at;
    bool holds = false;
    friend bool operator==(const Ring&, const Ring&) = default;
};

/// The pixels that a desktop paints it over: as many to each side of the one in which it lies.
PixelRect ringPixels(const Ring& ring, PixelScale scale);

/// Paints it on a transparent canvas of their size: a light line between dark ones, to be seen on every ground; while
/// it holds, a dark disc with a light dot in it.
void paintRing(Canvas& canvas, bool holds, PixelScale scale);

} // namespace tumble
