#pragma once

#include <QImage>

#include <vector>

namespace tumble {

/// Draws the back of a card, in one of the colourings from 0 to 3, with no colours but its three.
QImage drawBack(int colouring, QSize size);

/// The three colours of a back: the ground and those of the two motifs.
std::vector<QRgb> backColours(int colouring);

} // namespace tumble
