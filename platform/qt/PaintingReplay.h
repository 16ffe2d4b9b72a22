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
QRect toQRect(const PixelRect& pixels);

/// Fills `part` (in twips) of the image with the ground and paints the items over it; the rest stays as it is.
void replay(Colour ground, const std::vector<PaintItem>& items, PixelScale scale, const Rect& part,
            PictureCache& pictures, QImage& image);

} // namespace tumble
