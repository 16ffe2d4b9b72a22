#pragma once

#include <QColor>
#include <QPalette>

namespace tumble {

/// The colour, brought towards the palette's text as far as a line needs it to be seen on the window and on a button:
/// to a contrast of 3:1.
QColor withContrast(const QColor& colour, const QPalette& palette);

} // namespace tumble
