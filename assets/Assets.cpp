#include "assets/Assets.h"

#include <cstdint>

// The files lie one behind the other in the order of the set, the icon last; entry n of the offsets is where file n
// begins, and the last entry where the icon ends (see embed.S).
extern "C" {
extern const std::byte tumble_assets[];            // NOLINT(modernize-avoid-c-arrays): the assembler knows no other
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
