#pragma once

#include "platform/paint/Picture.h"

#include <string_view>
#include <vector>

namespace tumble::CardImages {

/// The 57 card pictures: the faces by rank from Ace to King and within a rank clubs, diamonds, hearts, spades; then the
/// joker; then the four backs. Created on first use; lives to the end of the process.
const std::vector<Picture>& pictures();

/// The first picture whose key is exactly `key`; for an unknown key, a picture without bytes.
const Picture& find(std::string_view key);

} // namespace tumble::CardImages
