#pragma once

#include "art/Symbols.h"
#include "platform/paint/Canvas.h"

#include <string>
#include <string_view>
#include <vector>

namespace tumble::art {

// The pictures of the set: first the faces, the four suits of the ace to those of the king; then joker and backs.
inline constexpr int faceCount = 13 * suitCount;
inline constexpr int jokerPicture = faceCount;
inline constexpr int firstBackPicture = jokerPicture + 1;
inline constexpr int backCount = 4;
inline constexpr int pictureCount = firstBackPicture + backCount;

/// The size for which the pictures are fitted to the pixels.
inline constexpr PixelSize cardSize{81, 126};

/// The name of a picture: "AceClubs" to "KingSpades", "Joker", "CardBack1" to "CardBack4".
std::string pictureKey(int picture);

/// The name of the program's icon.
inline constexpr std::string_view iconKey = "Tumble";

/// Draws a picture that fills a canvas.
void drawPicture(int picture, Canvas& canvas);
/// Draws the picture, or the icon on white, of that name; false when there is none.
bool drawPicture(std::string_view key, Canvas& canvas);

/// The colour table of a picture, of 256 entries.
std::vector<Colour> pictureColours(int picture);

/// Draws the program's icon on what is there, with a margin of so many pixels, and its colour table of 16 entries.
void drawIcon(Canvas& canvas, int margin = 0);
std::vector<Colour> iconColours();

} // namespace tumble::art
