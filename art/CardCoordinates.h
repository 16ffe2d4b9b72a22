#pragma once

#include "art/Drawing.h"

namespace tumble::art {

/// The size for which the pictures are designed: one unit of their coordinates is one pixel there.
inline constexpr PixelSize cardSize{81, 126};
inline constexpr Box wholeCard{{}, cardSize.width, cardSize.height};

/// The block of pixels nearest to a box in the drawing's coordinates; at least one pixel each way.
PixelRect snapped(const Drawing& drawing, const Box& box);

} // namespace tumble::art
