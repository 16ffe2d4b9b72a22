#include "assets/Assets.h"

#include <cstdint>

// The 57 card pictures in the order of the set, then the icon (see embed.S). File n is at offsets n to n + 1.
extern "C" {
extern const std::byte tumble_assets[];            // NOLINT(modernize-avoid-c-arrays): an assembler symbol
extern const std::uint32_t tumble_asset_offsets[]; // NOLINT(modernize-avoid-c-arrays)
}

namespace tumble::Assets {

namespace {

constexpr std::size_t cardPictures = 57;

std::span<const std::byte> file(std::size_t position) {
    const std::uint32_t begin = tumble_asset_offsets[position];
    return {tumble_assets + begin, tumble_asset_offsets[position + 1] - begin};
}

} // namespace

std::span<const std::byte> cardPicture(std::size_t position) {
    return position < cardPictures ? file(position) : std::span<const std::byte>();
}

std::span<const std::byte> icon() {
    return file(cardPictures);
}

} // namespace tumble::Assets
