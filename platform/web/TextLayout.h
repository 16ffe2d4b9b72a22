#pragma once

#include "platform/window/Captions.h"

#include <functional>
#include <optional>
#include <string>

namespace tumble {

/// The width of a piece of text in one line, in pixels.
using WidthOf = std::function<double(const std::string& piece)>;

/// The size of a text in lines of a height: broken at line feeds and, if there is a width, at spaces, with as many
/// words in a line as fit.
TextSize textSize(const std::string& text, const WidthOf& widthOf, int lineSpacing, std::optional<int> width);

} // namespace tumble
