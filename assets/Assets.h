#pragma once

#include <cstddef>
#include <span>

namespace tumble::Assets {

/// The encoded card picture at a position of the set, 0 to 56; nothing for any other.
std::span<const std::byte> cardPicture(std::size_t position);

/// The encoded icon.
std::span<const std::byte> icon();

} // namespace tumble::Assets
