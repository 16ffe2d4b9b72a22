#pragma once

#include <QMargins>
#include <QRect>
#include <QSizeF>

#include <optional>

class QScreen;

namespace tumble {

/// Brings a scale (logical pixels for each unscaled one) into what can be shown at a ratio of the screen.
double showable(double scale, double ratio);

/// The room that a screen has for windows: without its panels, and without the frame of a window.
class ScreenRoom {
public:
    /// All sizes in logical pixels; those of forms at scale 1. Without a frame it reckons with a usual one.
    ScreenRoom(const QScreen& screen, const std::optional<QMargins>& frame);

    /// The place for the content of the largest window.
    QRect inside() const { return available_.marginsRemoved(frame_); }
    /// The largest scale at which a form fits.
    double largestScale(QSizeF form) const;
    /// The scale below which a form need not be shown: 1, or on a small screen what it can hold.
    double leastScale(QSizeF form) const;
    /// The scale at which a form opens: the largest in steps of an eighth at which it takes no more than four fifths of
    /// the screen, if that is more than the least.
    double openingScale(QSizeF form) const;
    /// The place for a content of that size, in the middle of another as far as the room allows; one that is too large
    /// begins where the room does.
    QRect place(QSize content, const QRect& around) const;

private:
    QRect available_;
    QSizeF whole_;
    QMargins frame_;
    double ratio_;
};

} // namespace tumble
