#pragma once

#include "platform/paint/Replay.h"

#include <utility>

namespace tumble {

/// A painting as a canvas shows it, brought up to date only where it has become another since.
class DisplayListView {
public:
    DisplayListView(DisplayList list, PictureCache& pictures) : shown_(std::move(list)), pictures_(pictures) {}

    /// Whether the canvas has to be painted afresh: it is another size now, or shows the painting at another scale.
    bool outgrown(PixelSize size, PixelScale scale) const { return size_ != size || factor_ != scale.factor(); }
    /// Paints what the canvas does not show yet, and returns the part.
    PixelRect bringUpToDate(Canvas& canvas, const DisplayList& list, PixelScale scale);
    /// What the canvas shows counts as nothing: it is empty, or colours are others.
    void forget() { size_ = {}; }

private:
    DisplayList shown_;
    PixelSize size_;
    double factor_ = 0;
    PictureCache& pictures_;
};

} // namespace tumble
