#include "platform/paint/DrawingSurface.h"

namespace tumble {

ItemPainter::ItemPainter(DrawingSurface& surface, const Rect& bounds)
    : surface_(surface), item_{.bounds = bounds, .operations = {}}, current_(bounds.corner()) {}

ItemPainter::~ItemPainter() {
    surface_.add(item_);
}

void ItemPainter::PaintPicture(const Picture& picture, float x, float y, float width, float height) {
    const Rect box{.left = x, .top = y, .right = width + x - 1, .bottom = height + y - 1};
    item_.operations.push_back(PictureOperation{&picture, box});
}

void ItemPainter::Line(Point from, Point to, Colour colour) {
    item_.operations.push_back(LineOperation{from, to, colour});
    current_ = to;
}

void ItemPainter::Line(Point to, Colour colour) {
    Line(current_, to, colour);
}

void ItemPainter::Line(const Rect& box, std::optional<Colour> colour, BoxFill fill) {
    const Colour resolved = colour.value_or(surface_.ForeColor());
    if (fill == BoxFill::Filled) {
        item_.operations.push_back(FillOperation{box, resolved});
    } else {
        item_.operations.push_back(BoxOperation{box, resolved});
    }
}

void ItemPainter::Circle(Point centre, float radius, Colour colour) {
    item_.operations.push_back(CircleOperation{centre, radius, colour});
}

DrawingSurface::DrawingSurface(float width, float height, Colour backColor)
    : width_(width), height_(height), backColor_(backColor), displayList_(width, height, backColor) {}

void DrawingSurface::Cls() {
    const Rect all = displayList_.bounds();
    displayList_.clear(backColor_);
    painted({.bounds = all, .operations = {FillOperation{all, backColor_}}});
}

void DrawingSurface::add(const DisplayItem& item) {
    displayList_.add(item);
    painted(item);
}

} // namespace tumble
