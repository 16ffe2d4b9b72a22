#pragma once

#include "platform/base/Path.h"
#include "platform/base/Pixels.h"

namespace tumble::art {

/// A letter of "AJQKOER", a digit from 2 to 9 or the ten, written '0', as the middle line of a pen, in pixels.
/// The pen is a whole number of pixels wide, and the upright and level strokes lie on whole pixels.
/// Some strokes run over the edge of the box, where they are to be cut straight.
struct Glyph {
    Path line;
    int pen;
};

/// The glyph that fills a box of that size, whose upper left corner is the origin.
Glyph glyph(char character, PixelSize size);

} // namespace tumble::art
