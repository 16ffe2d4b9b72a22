#pragma once

#include "platform/base/Colour.h"

#include <QImage>

#include <filesystem>
#include <vector>

namespace tumble {

/// Writes a picture as a GIF87a file with one colour table and one plain image.
/// Each pixel takes the nearest of the colours, whose number is a power of two up to 256.
void writeGif(const QImage& picture, const std::vector<Colour>& colours, const std::filesystem::path& file);

} // namespace tumble
