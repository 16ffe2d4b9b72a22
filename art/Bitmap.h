#pragma once

#include "platform/paint/Canvas.h"

#include <cstddef>
#include <string_view>

namespace tumble::art {

/// Pixels as text, a character for each, row after row.
struct Bitmap {
    std::string_view text;
    std::size_t stride; ///< The characters from the beginning of one row to that of the next.
};

/// Paints the pixels that bear a mark in the bitmap. The block of pixels is as large as the bitmap.
void paintBitmap(Canvas& canvas, const Bitmap& bitmap, char mark, const PixelRect& pixels, Colour colour);

} // namespace tumble::art
