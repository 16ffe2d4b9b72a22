#pragma once

#include "platform/window/Layout.h"

#include <QMargins>
#include <QRect>

#include <optional>

namespace tumble {

/// The part of a screen that a window's content may cover: without the screen's panels and the window's frame, in
/// logical pixels.
class WorkArea {
public:
    /// `available` is what the panels leave of a screen of the size `whole`. An unknown frame is assumed to be a usual
    /// one.
    WorkArea(const QRect& available, QSize whole, double ratio, const std::optional<QMargins>& frame);

    /// The place for the content of the largest window.
    const QRect& area() const { return area_; }
    /// The largest scale at which a form fits.
    double largestScale(const FormSize& form) const;
    /// The least scale that a window can be given: 1, or the largest where that is less.
    double leastScale(const FormSize& form) const;
    /// The scale at which a form opens: the largest multiple of an eighth at which it covers at most four fifths of the
    /// screen each way, but never below the least scale.
    double openingScale(const FormSize& form) const;
    /// The place for content of a size in the middle of another place, moved into the area. Content that is too large
    /// begins where the area does.
    QRect place(QSize content, const QRect& around) const;

private:
    QRect area_;
    QSize whole_;
    double ratio_;
};

} // namespace tumble
