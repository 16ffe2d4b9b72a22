#include "platform/DrawingSurface.h"

namespace tumble {

Brush::Brush(DrawingSurface& surface, const Rect& place)
    : surface_(surface), item_{.place = place, .operations = {}}, current_{place.left, place.top} {}

Brush::~Brush() {
    surface_.add(item_);
}

void Brush::PaintPicture(const Picture& picture, float x, float y, float width, float height) {
    const Rect box{.left = x, .top = y, .right = width + x - 1, .bottom = height + y - 1};
    item_.operations.push_back(PictureOperation{&picture, box});
}

void Brush::Line(Point from, Point to, Colour colour) {
    item_.operations.push_back(LineOperation{from, to, colour});
    current_ = to;
}

void Brush::Line(Point to, Colour colour) {
    Line(current_, to, colour);
}

void Brush::Line(const Rect& box, std::optional<Colour> colour, BoxFill fill) {
    const Colour resolved = colour.value_or(surface_.ForeColor());
    if (fill == BoxFill::Filled) {
        item_.operations.push_back(FillOperation{box, resolved});
    } else {
        item_.operations.push_back(BoxOperation{box, resolved});
    }
}

void Brush::Circle(Point centre, float radius, Colour colour) {
    item_.operations.push_back(CircleOperation{centre, radius, colour});
}

DrawingSurface::DrawingSurface(float width, float height, Colour backColor)
    : width_(width), height_(height), backColor_(backColor), painting_(width, height, backColor) {}

void DrawingSurface::Cls() {
    const Rect all = painting_.bounds();
    painting_.clear(backColor_);
    painted({.place = all, .operations = {FillOperation{all, backColor_}}});
}

void DrawingSurface::add(const PaintItem& item) {
    painting_.add(item);
    painted(item);
}

} // namespace tumble
