#pragma once

#include "platform/paint/Replay.h"

#include <utility>

namespace tumble {

/// A display list as a canvas shows it. Only the damage since the last update is replayed.
class DisplayListView {
public:
    DisplayListView(DisplayList list, PictureCache& pictures) : shown_(std::move(list)), pictures_(pictures) {}

    /// Whether the whole canvas has to be repainted: at a size or scale other than that of the last update.
    bool needsRepaint(PixelSize size, PixelScale scale) const { return size_ != size || factor_ != scale.factor(); }
    /// Replays the damage on the canvas and returns the pixels that were repainted.
    PixelRect bringUpToDate(Canvas& canvas, const DisplayList& list, PixelScale scale);
    /// Lets the next update repaint everything: the canvas was emptied, or a colour resolves differently.
    void invalidate() { size_ = {}; }

private:
    DisplayList shown_;
    PixelSize size_;
    double factor_ = 0;
    PictureCache& pictures_;
};

} // namespace tumble
