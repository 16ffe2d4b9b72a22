#pragma once

#include "platform/Controls.h"

#include <QFont>
#include <QSize>
#include <QString>

#include <vector>

namespace tumble {

/// Into how many lines a caption is broken: one, two at most, or as many as there is room for.
enum class Wrap { No, Twice, Freely };

struct CaptionInRoom {
    QString caption;
    QSize room; // logical pixels
};

/// The application's font in the size asked for, times the scale or, where not all of the captions fit their rooms, the
/// largest smaller and at last narrower one in which they do; never below 6.5 points times the scale. Fonts differ by a
/// fifth between machines, places do not.
QFont captionFont(const Font& wanted, double scale, const std::vector<CaptionInRoom>& captions, Wrap wrap);

} // namespace tumble
