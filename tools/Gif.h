#pragma once

#include "platform/base/Colour.h"

#include <QImage>

#include <filesystem>
#include <vector>

namespace tumble::art {

/// Writes a picture as a GIF87a file with one colour table and one image. Each pixel gets the nearest of the colours.
/// Their number is a power of two up to 256. Throws if the file cannot be written.
void writeGif(const QImage& picture, const std::vector<Colour>& colours, const std::filesystem::path& file);

} // namespace tumble::art
