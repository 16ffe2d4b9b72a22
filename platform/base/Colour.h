#pragma once

#include <array>
#include <cstdint>

namespace tumble {

/// 24 bits, 0xBBGGRR: red in the low byte.
using Colour = std::int32_t;

/// The background of the window around a picture box, in whatever theme; only the desktop can resolve it.
inline constexpr Colour windowColour = -1;

constexpr Colour rgb(int red, int green, int blue) {
    return blue << 16 | green << 8 | red;
}
/// Red, green and blue, from 0 to 255.
constexpr std::array<int, 3> channels(Colour colour) {
    return {colour & 255, colour >> 8 & 255, colour >> 16 & 255};
}

} // namespace tumble
