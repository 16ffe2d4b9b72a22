#pragma once

#include "art/Icon.h"

#include <filesystem>
#include <vector>

namespace tumble::art {

/// Writes filled shapes as a square SVG picture of that width. Throws if the file cannot be written.
void writeSvg(const std::vector<Shape>& shapes, int width, const std::filesystem::path& file);

} // namespace tumble::art
