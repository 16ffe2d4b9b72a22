#pragma once

#include "platform/base/Colour.h"

#include <vector>

namespace tumble::art {

// The four colours of the card faces.
inline constexpr Colour black = rgb(0, 0, 0);
inline constexpr Colour red = rgb(208, 0, 0);
inline constexpr Colour yellow = rgb(255, 208, 0);
inline constexpr Colour white = rgb(255, 255, 255);

/// 256 colours for a face: every mixture of the four in ninths, and finer steps from white to black and to red.
std::vector<Colour> facePalette();

/// 16 colours for the icon on white: steps from white to black and to red.
std::vector<Colour> iconPalette();

} // namespace tumble::art
