#pragma once

#include "platform/base/Pixels.h"

#include <QRect>

namespace tumble {

// The toolkit's sizes and rectangles and those of the layers below. An empty block becomes a null rectangle: the
// toolkit would reach to the left and up from its place.

inline QSize toQSize(PixelSize size) {
    return {size.width, size.height};
}

inline QRect toQRect(const PixelRect& pixels) {
    return pixels.empty() ? QRect() : QRect(QPoint(pixels.left, pixels.top), QPoint(pixels.right, pixels.bottom));
}

inline PixelSize toPixelSize(QSize size) {
    return {size.width(), size.height()};
}

inline PixelRect toPixelRect(const QRect& rect) {
    return {.left = rect.left(), .top = rect.top(), .right = rect.right(), .bottom = rect.bottom()};
}

} // namespace tumble
