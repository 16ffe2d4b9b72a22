#pragma once

#include "platform/paint/Canvas.h"

#include <vector>

namespace tumble::art {

/// Draws the back of a card that fills a canvas, in one of the colourings from 0 to 3, with no colours but its three.
void drawBack(int colouring, Canvas& canvas);

/// The three colours of a back: the ground and those of the two motifs.
std::vector<Colour> backPalette(int colouring);

} // namespace tumble::art
