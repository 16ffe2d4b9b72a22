#pragma once

#include "platform/base/PixelScale.h"
#include "platform/paint/Canvas.h"
#include "platform/paint/DisplayList.h"
#include "platform/paint/PictureCache.h"

namespace tumble {

/// Paints what shows of a painting at a scale in a part of a canvas, and returns the part, which is made larger where
/// it would cut a circle: a smoothed line is painted whole or not at all.
PixelRect replay(Canvas& canvas, const DisplayList& list, PixelScale scale, PixelRect part, PictureCache& pictures);

/// Paints the whole of an item, whatever lies over it.
void paint(Canvas& canvas, const DisplayItem& item, PixelScale scale, PictureCache& pictures);

/// Paints a picture that fills a box of pixels, as far as it lies in a part: a white card crossed in red where there is
/// no image of it.
void paint(Canvas& canvas, const Picture& picture, const PixelRect& box, const PixelRect& part, PictureCache& pictures);

} // namespace tumble
