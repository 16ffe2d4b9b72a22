#pragma once

#include "art/Drawing.h"

namespace tumble {

/// Paints the joker's mark in the upper left corner.
void paintJokerMark(const Drawing& drawing);

/// Paints the jester, who juggles the suits.
void paintJester(const Drawing& drawing);

} // namespace tumble
