#pragma once

#include <QColor>

#include <vector>

namespace tumble {

// The four colours of the card faces.
inline constexpr QRgb black = qRgb(0, 0, 0);
inline constexpr QRgb red = qRgb(208, 0, 0);
inline constexpr QRgb yellow = qRgb(255, 208, 0);
inline constexpr QRgb white = qRgb(255, 255, 255);

/// 256 colours for a face: every mixture of the four inks in ninths, and finer steps from white to black and to red.
std::vector<QRgb> faceColours();

/// 15 colours for suits on white: steps from white to black and to red.
std::vector<QRgb> suitColours();

} // namespace tumble
