#pragma once

#include "platform/base/Path.h"

namespace tumble::art {

/// The size of a glyph and the width of its strokes.
struct GlyphMetrics {
    double width;
    double height;
    double strokeWidth;
};

/// Scales the centre lines of a design to pixels and fits them to the pixel grid. Straight level and upright strokes,
/// and the extremes of curves, get their edges on whole pixels; the places between are interpolated. The metrics in
/// pixels are whole numbers.
Path hinted(const Path& design, const GlyphMetrics& designed, const GlyphMetrics& pixels);

} // namespace tumble::art
