#pragma once

#include "platform/Painting.h"
#include "platform/PixelScale.h"
#include "platform/qt/PictureCache.h"

#include <QColor>
#include <QImage>
#include <QRect>

#include <vector>

namespace tumble {

QColor toQColor(Colour colour);
/// Null when there are no pixels in it.
QRect toQRect(const PixelRect& pixels);

/// Fills `part`, a block of the image's pixels, with the ground and paints the items over it; the rest stays as it is.
void replay(Colour ground, const std::vector<PaintItem>& items, PixelScale scale, const PixelRect& part,
            PictureCache& pictures, QImage& image);

} // namespace tumble
