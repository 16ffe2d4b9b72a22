#pragma once

#include <array>
#include <cstdint>

namespace tumble {

// Mouse buttons as a picture box receives them; of several the sum.
inline constexpr std::int16_t leftButton = 1;
inline constexpr std::int16_t rightButton = 2;
inline constexpr std::int16_t middleButton = 4;
inline constexpr std::array mouseButtons{leftButton, rightButton, middleButton};

} // namespace tumble
