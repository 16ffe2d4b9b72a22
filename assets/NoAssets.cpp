#include "assets/Assets.h"

// For a program that draws all its pictures and has no room for others.

namespace tumble::Assets {

std::span<const std::byte> cardPicture(std::size_t /*position*/) {
    return {};
}

std::span<const std::byte> icon() {
    return {};
}

} // namespace tumble::Assets
