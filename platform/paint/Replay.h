#pragma once

#include "platform/base/PixelScale.h"
#include "platform/paint/Canvas.h"
#include "platform/paint/DisplayList.h"
#include "platform/paint/PictureCache.h"

namespace tumble {

/// Paints the part of a display list that lies in `part`, at a scale, and returns that part. It is enlarged where it
/// would cut a circle: a smoothed line is painted whole or not at all.
PixelRect replay(Canvas& canvas, const DisplayList& list, PixelScale scale, PixelRect part, PictureCache& pictures);

/// Paints the whole of an item, also what other items cover.
void paint(Canvas& canvas, const DisplayItem& item, PixelScale scale, PictureCache& pictures);

} // namespace tumble
