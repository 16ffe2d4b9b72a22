#pragma once

#include "art/Drawing.h"

namespace tumble::art {

/// Paints the jester of the joker, who juggles the suits.
void paintJester(const Drawing& drawing);

} // namespace tumble::art
