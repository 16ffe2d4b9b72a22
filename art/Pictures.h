#pragma once

#include "art/SuitSymbols.h"
#include "platform/paint/Canvas.h"

#include <string>
#include <string_view>
#include <vector>

namespace tumble::art {

// The numbers of the pictures: first the faces, the four suits of the ace to those of the king; then joker and backs.
inline constexpr int faceCount = 13 * suitCount;
inline constexpr int jokerPicture = faceCount;
inline constexpr int firstBackPicture = jokerPicture + 1;
inline constexpr int backCount = 4;
inline constexpr int pictureCount = firstBackPicture + backCount;

/// The key of a picture: "AceClubs" to "KingSpades", "Joker", "CardBack1" to "CardBack4".
std::string pictureKey(int picture);

/// Draws a picture that fills a canvas.
void drawPicture(int picture, Canvas& canvas);
/// Draws the picture of that key, or for "Tumble" the icon on white; false for any other key.
bool drawPicture(std::string_view key, Canvas& canvas);

/// The palette of a picture, of 256 colours.
std::vector<Colour> picturePalette(int picture);

} // namespace tumble::art
