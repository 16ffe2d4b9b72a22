#pragma once

#include <cstddef>
#include <span>

namespace tumble::Assets {

/// The GIF file of the card picture at a position of the set, 0 to 56; empty for any other position.
std::span<const std::byte> cardPicture(std::size_t position);

/// The GIF file of the icon.
std::span<const std::byte> icon();

} // namespace tumble::Assets
