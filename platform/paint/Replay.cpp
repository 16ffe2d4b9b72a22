#include "platform/paint/Replay.h"

#include <cstddef>
#include <variant>
#include <vector>

namespace tumble {

namespace {

/// A display item in device pixels.
struct PixelItem {
    const DisplayItem* item;
    PixelRect bounds;
    bool opaque;
};

/// The pixels that a circle may touch.
PixelRect circlePixels(const CircleOperation& circle, PixelScale scale) {
    const auto [x, y] = circle.centre;
    return scale.pixels(Rect{x, y, x, y}.expanded(circle.radius)).expanded(scale.pen());
}

/// Paints the visible part of one operation of an item.
struct OperationPainter {
    Canvas& canvas;
    PixelScale scale;
    PixelRect bounds; ///< of the item
    PixelRect visible;
    PictureCache& pictures;

    void operator()(const PictureOperation& picture) const {
        pictures.paint(canvas, *picture.picture, scale.pixels(picture.box), visible);
    }

    void operator()(const FillOperation& fill) const { paintBlock(scale.pixels(fill.box), fill.colour); }

    void operator()(const BoxOperation& box) const {
        for (const PixelRect& side : boxSides(scale.pixels(box.box), scale.pen())) {
            paintBlock(side, box.colour);
        }
    }

    void operator()(const LineOperation& line) const {
        for (const PixelRect& block :
             rasterizeLine(scale.pixel(line.from), scale.pixel(line.to), scale.pen(), bounds)) {
            paintBlock(block, line.colour);
        }
    }

    void operator()(const CircleOperation& circle) const {
        const PixelRect touched = circlePixels(circle, scale).intersected(visible);
        if (touched.empty()) {
            return;
        }
        const auto [x, y] = scale.pixel(circle.centre);
        Path path;
        path.addCircle({x + 0.5, y + 0.5},
                       scale.factor() * static_cast<double>(circle.radius) / static_cast<double>(twipsPerPixel));
        canvas.clip(touched);
        canvas.stroke(path, {}, {circle.colour, static_cast<double>(scale.pen())});
        canvas.clip(canvas.bounds());
    }

private:
    void paintBlock(const PixelRect& block, Colour colour) const { canvas.fill(block.intersected(visible), colour); }
};

/// The part of a block that the opaque items from position `first` on do not cover.
PixelRect unoccluded(PixelRect block, const std::vector<PixelItem>& items, std::size_t first) {
    for (std::size_t i = items.size(); i-- > first && !block.empty();) {
        if (items[i].opaque) {
            block = block.subtracted(items[i].bounds);
        }
    }
    return block;
}

/// The part, enlarged until it cuts no circle.
PixelRect withWholeCircles(PixelRect part, const std::vector<PixelItem>& items, PixelScale scale) {
    std::vector<PixelRect> circles;
    for (std::size_t i = 0; i < items.size(); ++i) {
        for (const Operation& operation : items[i].item->operations) {
            if (const auto* circle = std::get_if<CircleOperation>(&operation)) {
                const PixelRect block = circlePixels(*circle, scale).intersected(items[i].bounds);
                circles.push_back(unoccluded(block, items, i + 1));
            }
        }
    }
    for (bool enlarged = true; enlarged;) {
        enlarged = false;
        for (const PixelRect& circle : circles) {
            if (!circle.intersected(part).empty() && !part.contains(circle)) {
                part = part.united(circle);
                enlarged = true;
            }
        }
    }
    return part;
}

} // namespace

// Occluded parts are not painted: of a row of overlapping cards, all but the last show a narrow strip.
PixelRect replay(Canvas& canvas, const DisplayList& list, PixelScale scale, PixelRect part, PictureCache& pictures) {
    std::vector<PixelItem> items;
    items.reserve(list.items().size());
    for (const DisplayItem& item : list.items()) {
        items.push_back({&item, scale.pixels(item.bounds), item.opaque()});
    }
    part = withWholeCircles(part, items, scale).intersected(canvas.bounds());
    std::erase_if(items, [&](const PixelItem& item) { return item.bounds.intersected(part).empty(); });
    canvas.fill(unoccluded(part, items, 0), list.ground());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto& [item, bounds, opaque] = items[i];
        const PixelRect visible = unoccluded(bounds.intersected(part), items, i + 1);
        if (!visible.empty()) {
            for (const Operation& operation : item->operations) {
                std::visit(OperationPainter{canvas, scale, bounds, visible, pictures}, operation);
            }
        }
    }
    return part;
}

void paint(Canvas& canvas, const DisplayItem& item, PixelScale scale, PictureCache& pictures) {
    const PixelRect bounds = scale.pixels(item.bounds);
    for (const Operation& operation : item.operations) {
        std::visit(OperationPainter{canvas, scale, bounds, bounds, pictures}, operation);
    }
}

} // namespace tumble
