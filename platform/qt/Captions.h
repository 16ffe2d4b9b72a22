#pragma once

#include "platform/Controls.h"

#include <QFont>
#include <QSize>
#include <QString>

namespace tumble {

enum class Wrap { Lines, Words };

/// The application's font in the size asked for, times the scale or, where the caption does not fit its room (logical
/// pixels), the largest smaller and at last narrower one in which it does; never below 6.5 points times the scale.
/// Fonts differ by a fifth between machines, places do not.
QFont captionFont(const Font& wanted, double scale, const QString& caption, QSize room, Wrap wrap);

} // namespace tumble
