#pragma once

#include "platform/base/Pixels.h"

#include <QRect>

namespace tumble {

// Conversions between the sizes and rectangles of the toolkit and of the layers below.

inline QSize toQSize(PixelSize size) {
    return {size.width, size.height};
}

/// An empty rectangle becomes a null one: the toolkit would let it extend to the left and up.
inline QRect toQRect(const PixelRect& pixels) {
    return pixels.empty() ? QRect() : QRect(QPoint(pixels.left, pixels.top), QPoint(pixels.right, pixels.bottom));
}

inline PixelSize toPixelSize(QSize size) {
    return {size.width(), size.height()};
}

} // namespace tumble
