#pragma once

#include <QColor>
#include <QPalette>

namespace tumble {

/// The colour, mixed with the palette's text colour until its contrast with windows and buttons is at least 3:1, as
/// a visible line needs. The text colour itself where no mixture reaches that.
QColor withContrast(const QColor& colour, const QPalette& palette);

} // namespace tumble
