#pragma once

#include "art/Symbols.h"

#include <QColor>
#include <QImage>

#include <string>
#include <string_view>
#include <vector>

namespace tumble {

// The pictures of the set: first the faces, the four suits of the ace to those of the king; then joker and backs.
inline constexpr int faceCount = 13 * suitCount;
inline constexpr int jokerPicture = faceCount;
inline constexpr int firstBackPicture = jokerPicture + 1;
inline constexpr int backCount = 4;
inline constexpr int pictureCount = firstBackPicture + backCount;

/// The size for which the pictures are fitted to the pixels.
inline constexpr QSize cardSize(81, 126);

/// The name of a picture: "AceClubs" to "KingSpades", "Joker", "CardBack1" to "CardBack4".
std::string pictureKey(int picture);

/// The name of the program's icon.
inline constexpr std::string_view iconKey = "Tumble";

/// Draws a picture at the given size in pixels.
QImage drawPicture(int picture, QSize size);
/// Draws the picture, or the icon, of that name; a null image when there is none.
QImage drawPicture(std::string_view key, QSize size);

/// The colour table of a picture, of 256 entries.
std::vector<QRgb> pictureColours(int picture);

/// The program's icon on a ground, and its colour table of 16 entries.
QImage drawIcon(QSize size, QColor ground = Qt::white);
std::vector<QRgb> iconColours();

} // namespace tumble
