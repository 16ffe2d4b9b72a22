#pragma once

#include "platform/window/Captions.h"

#include <QFont>

namespace tumble {

/// The application's font in the size, weight and width of a caption.
QFont toQFont(const CaptionFont& caption);

/// The size of a text in logical pixels; a `TextMeasure`.
TextSize measure(const std::string& text, const CaptionFont& font, std::optional<int> width);

} // namespace tumble
