#pragma once

#include "platform/base/Path.h"
#include "platform/paint/Canvas.h"

namespace tumble::art {

/// A character of the stroke font, in pixels. The strokes are a whole number of pixels wide; upright and level ones lie
/// on whole pixels. Some strokes cross the edge of the glyph's box: the painter clips them.
struct Glyph {
    Path centreLine;
    int strokeWidth;
};

/// The glyph that fills a box of that size, whose upper left corner is the origin. The font has the letters of
/// "AJQKOER", the digits from 2 to 9, and the ten as '0'.
Glyph glyph(char character, PixelSize size);

/// Paints a glyph that fills a block of pixels.
void paintGlyph(Canvas& canvas, char character, const PixelRect& pixels, Colour colour);

} // namespace tumble::art
