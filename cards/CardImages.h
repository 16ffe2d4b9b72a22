#pragma once

#include "platform/paint/Picture.h"

#include <string_view>
#include <vector>

namespace tumble::CardImages {

/// The 57 card pictures in the order of the set: the faces by rank from Ace to King and within a rank by suit from
/// Clubs to Spades, the joker, the four backs. Made on first use; lives to the end of the process.
const std::vector<Picture>& pictures();

/// The first picture of the set whose key is exactly `key`; for a key that names none, a picture without bytes.
const Picture& find(std::string_view key);

} // namespace tumble::CardImages
