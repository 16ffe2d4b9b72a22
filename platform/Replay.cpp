#include "platform/Replay.h"

#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

namespace tumble {

namespace {

/// An item, the pixels that it covers, and those of them that are to be painted.
struct Shown {
    const PaintItem* item;
    PixelRect place;
    PixelRect visible;
};

/// Paints the operations of one item, as far as they are visible.
struct ItemPainter {
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

    // Also where it is hidden: what hides it is painted over it.
    void operator()(const CircleOperation& circle) const {
        Path path;
        path.addCircle({scale.pixel(circle.centre.x) + 0.5, scale.pixel(circle.centre.y) + 0.5},
                       scale.factor() * static_cast<double>(circle.radius) / static_cast<double>(twipsPerPixel));
        canvas.clip(shown.place);
        canvas.stroke(path, {}, {circle.colour, static_cast<double>(scale.pen())});
        canvas.clip(canvas.bounds());
    }

private:
    void paintBlock(const PixelRect& block, Colour colour) const {
        canvas.fill(block.intersected(shown.visible), colour);
    }
};

void paint(Canvas& canvas, const Shown& shown, PixelScale scale, PictureCache& pictures) {
    for (const Operation& operation : shown.item->operations) {
        std::visit(ItemPainter{canvas, scale, shown, pictures}, operation);
    }
}

bool hasCircle(const PaintItem& item) {
    return std::any_of(item.operations.begin(), item.operations.end(),
                       [](const Operation& operation) { return std::holds_alternative<CircleOperation>(operation); });
}

/// The part, grown until it holds every item with a circle that it meets.
PixelRect withWholeCircles(PixelRect part, const std::vector<PaintItem>& items, PixelScale scale) {
    std::vector<PixelRect> apart;
    for (const PaintItem& item : items) {
        if (hasCircle(item)) {
            apart.push_back(scale.pixels(item.place));
        }
    }
    const auto meetsPart = [&](const PixelRect& place) { return !place.intersected(part).empty(); };
    for (auto met = apart.begin(); (met = std::find_if(apart.begin(), apart.end(), meetsPart)) != apart.end();) {
        part = part.joined(*met);
        apart.erase(met);
    }
    return part;
}

} // namespace

// Looked through from the top, so that what later items hide is not painted at all: of a row of cards all but the last
// show a narrow strip.
PixelRect replay(Canvas& canvas, const Painting& painting, PixelScale scale, PixelRect part, PictureCache& pictures) {
    const auto& items = painting.items();
    part = withWholeCircles(part, items, scale).intersected(canvas.bounds());
    std::vector<Shown> topDown;
    std::vector<PixelRect> covers;
    const auto visiblePart = [&](const PixelRect& place) {
        PixelRect visible = place.intersected(part);
        for (auto cover = covers.begin(); cover != covers.end() && !visible.empty(); ++cover) {
            visible = visible.without(*cover);
        }
        return visible;
    };
    std::for_each(items.rbegin(), items.rend(), [&](const PaintItem& item) {
        const PixelRect place = scale.pixels(item.place);
        if (const PixelRect visible = visiblePart(place); !visible.empty()) {
            topDown.push_back({&item, place, visible});
            if (item.opaque()) {
                covers.push_back(place);
            }
        }
    });
    canvas.fill(visiblePart(part), painting.ground());
    std::for_each(topDown.rbegin(), topDown.rend(), [&](const Shown& shown) { paint(canvas, shown, scale, pictures); });
    return part;
}

void paint(Canvas& canvas, const PaintItem& item, PixelScale scale, PictureCache& pictures) {
    const PixelRect place = scale.pixels(item.place);
    paint(canvas, {&item, place, place}, scale, pictures);
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
