#include "art/Bitmap.h"

namespace tumble::art {

void paintBitmap(Canvas& canvas, const Bitmap& bitmap, char mark, const PixelRect& pixels, Colour colour) {
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x) {
            if (bitmap.text[static_cast<std::size_t>(y) * bitmap.stride + static_cast<std::size_t>(x)] == mark) {
                canvas.fill(PixelSize{1, 1}.at({pixels.left + x, pixels.top + y}), colour);
            }
        }
    }
}

} // namespace tumble::art
