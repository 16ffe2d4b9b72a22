#include "platform/paint/Replay.h"

#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

namespace tumble {

namespace {

/// An item, the pixels that it covers, and those of them that are to be painted.
struct Shown {
    const DisplayItem* item;
    PixelRect place;
    PixelRect visible;
    bool opaque;
};

/// The pixels that a circle may touch.
PixelRect bounds(const CircleOperation& circle, PixelScale scale) {
    const Point least{circle.centre.x - circle.radius, circle.centre.y - circle.radius};
    const Point most{circle.centre.x + circle.radius, circle.centre.y + circle.radius};
    const int pen = scale.pen();
    return scale.pixels({least.x, least.y, most.x, most.y}).inset(-pen, -pen);
}

/// Paints the operations of one item, as far as they are visible.
struct OperationPainter {
    Canvas& canvas;
    PixelScale scale;
    const Shown& shown;
    PictureCache& pictures;

    void operator()(const PictureOperation& picture) const {
        paint(canvas, *picture.picture, scale.pixels(picture.box), shown.visible, pictures);
    }

    void operator()(const FillOperation& fill) const { paintBlock(scale.pixels(fill.box), fill.colour); }

    void operator()(const BoxOperation& box) const {
        for (const PixelRect& side : boxSides(scale.pixels(box.box), scale.pen())) {
            paintBlock(side, box.colour);
        }
    }

    void operator()(const LineOperation& line) const {
        if (line.from.x == line.to.x || line.from.y == line.to.y) {
            paintBlock(scale.stroke(line.from, line.to, shown.place), line.colour);
            return;
        }
        for (const PixelRect& block : scale.slant(line.from, line.to, shown.place)) {
            paintBlock(block, line.colour);
        }
    }

    void operator()(const CircleOperation& circle) const {
        const PixelRect whole = bounds(circle, scale);
        const PixelRect touched = whole.intersected(shown.visible);
        if (touched.empty()) {
            return;
        }
        Path path;
        path.addCircle({scale.pixel(circle.centre.x) + 0.5, scale.pixel(circle.centre.y) + 0.5},
                       scale.factor() * static_cast<double>(circle.radius) / static_cast<double>(twipsPerPixel));
        const bool cut = touched != whole;
        if (cut) {
            canvas.clip(touched);
        }
        canvas.stroke(path, {}, {circle.colour, static_cast<double>(scale.pen())});
        if (cut) {
            canvas.clip(canvas.bounds());
        }
    }

private:
    void paintBlock(const PixelRect& block, Colour colour) const {
        canvas.fill(block.intersected(shown.visible), colour);
    }
};

void paint(Canvas& canvas, const Shown& shown, PixelScale scale, PictureCache& pictures) {
    for (const Operation& operation : shown.item->operations) {
        std::visit(OperationPainter{canvas, scale, shown, pictures}, operation);
    }
}

/// What later items leave to see of a block of an item.
PixelRect leftBy(const std::vector<Shown>& items, std::size_t position, PixelRect block) {
    for (std::size_t later = items.size() - 1; later > position && !block.empty(); --later) {
        if (items[later].opaque) {
            block = block.without(items[later].place);
        }
    }
    return block;
}

/// The part, grown until it cuts no circle.
PixelRect withWholeCircles(PixelRect part, const std::vector<Shown>& items, PixelScale scale) {
    for (bool grown = true; grown;) {
        grown = false;
        for (std::size_t i = 0; i < items.size(); ++i) {
            const PixelRect place = items[i].place.intersected(part);
            if (place.empty() || part.contains(items[i].place)) {
                continue;
            }
            for (const Operation& operation : items[i].item->operations) {
                const auto* circle = std::get_if<CircleOperation>(&operation);
                if (circle == nullptr || bounds(*circle, scale).intersected(place).empty()) {
                    continue;
                }
                const PixelRect shown = leftBy(items, i, bounds(*circle, scale).intersected(items[i].place));
                if (!shown.intersected(part).empty() && !part.contains(shown)) {
                    part = part.united(shown);
                    grown = true;
                }
            }
        }
    }
    return part;
}

} // namespace

// Looked through from the top, so that what later items hide is not painted at all: of a row of cards all but the last
// show a narrow strip.
PixelRect replay(Canvas& canvas, const DisplayList& list, PixelScale scale, PixelRect part, PictureCache& pictures) {
    std::vector<Shown> items;
    items.reserve(list.items().size());
    for (const DisplayItem& item : list.items()) {
        items.push_back({&item, scale.pixels(item.place), {}, item.opaque()});
    }
    part = withWholeCircles(part, items, scale).intersected(canvas.bounds());
    std::vector<PixelRect> covers;
    covers.reserve(items.size());
    const auto visiblePart = [&](const PixelRect& place) {
        PixelRect visible = place.intersected(part);
        for (auto cover = covers.begin(); cover != covers.end() && !visible.empty(); ++cover) {
            visible = visible.without(*cover);
        }
        return visible;
    };
    std::for_each(items.rbegin(), items.rend(), [&](Shown& shown) {
        shown.visible = visiblePart(shown.place);
        if (!shown.visible.empty() && shown.opaque) {
            covers.push_back(shown.place);
        }
    });
    canvas.fill(visiblePart(part), list.ground());
    for (const Shown& shown : items) {
        if (!shown.visible.empty()) {
            paint(canvas, shown, scale, pictures);
        }
    }
    return part;
}

void paint(Canvas& canvas, const DisplayItem& item, PixelScale scale, PictureCache& pictures) {
    const PixelRect place = scale.pixels(item.place);
    paint(canvas, {&item, place, place, false}, scale, pictures);
}

void paint(Canvas& canvas, const Picture& picture, const PixelRect& box, const PixelRect& part,
           PictureCache& pictures) {
    const PixelRect visible = box.intersected(part);
    if (visible.empty()) {
        return;
    }
    if (const Canvas* image = pictures.image(picture, box.size(), canvas)) {
        const PixelPoint inImage{visible.left - box.left, visible.top - box.top};
        canvas.draw(*image, visible.size().at(inImage), visible.corner());
        return;
    }
    canvas.fill(visible, rgb(255, 255, 255));
    const int pen = std::max(1, box.width() / 20);
    for (const auto& [top, bottom] : {std::pair(box.left, box.right), std::pair(box.right, box.left)}) {
        for (const PixelRect& block : slant({top, box.top}, {bottom, box.bottom}, pen, visible)) {
            canvas.fill(block, rgb(255, 0, 0));
        }
    }
}

} // namespace tumble
