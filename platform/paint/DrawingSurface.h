#pragma once

#include "platform/base/NonMovable.h"
#include "platform/paint/DisplayList.h"

#include <optional>

namespace tumble {

class DrawingSurface;

enum class BoxFill { Outline, Filled };

/// Paints one item on a surface: open it for a place, paint, and the item is on the surface when the brush goes.
/// Coordinates are the surface's twips; nothing shows outside the place.
class ItemPainter : private NonMovable {
public:
    ItemPainter(DrawingSurface& surface, const Rect& place);
    ~ItemPainter();

    /// Scales the whole picture into the box; the picture must outlive the surface.
    void PaintPicture(const Picture& picture, float x, float y, float width, float height);
    void Line(Point from, Point to, Colour colour);
    /// A line from where the last one ended (at first, from the place's top left corner).
    void Line(Point to, Colour colour);
    /// Without a colour, in the surface's `ForeColor`.
    void Line(const Rect& box, std::optional<Colour> colour, BoxFill fill);
    /// `radius` in twips.
    void Circle(Point centre, float radius, Colour colour);

private:
    DrawingSurface& surface_;
    DisplayItem item_;
    Point current_;
};

/// What cards paint on. It keeps its painting, whatever covers the window.
class DrawingSurface : private NonMovable {
public:
    /// `width` and `height` in twips; the surface starts empty, showing `backColor`.
    DrawingSurface(float width, float height, Colour backColor);
    virtual ~DrawingSurface() = default;

    float Width() const { return width_; }
    float Height() const { return height_; }

    Colour BackColor() const { return backColor_; }
    /// Used from now on; what is painted already stays as it is.
    void BackColor(Colour colour) { backColor_ = colour; }
    Colour ForeColor() const { return foreColor_; }
    void ForeColor(Colour colour) { foreColor_ = colour; }

    /// Opens one item that covers `place`.
    [[nodiscard]] ItemPainter Paint(const Rect& place) { return {*this, place}; }
    /// Clears the surface to `BackColor`.
    void Cls();

    const DisplayList& displayList() const { return displayList_; }

protected:
    /// Called with each item once the painting has it (for `Cls`, with a filling of the whole surface).
    virtual void painted(const DisplayItem& /*item*/) {}

private:
    friend class ItemPainter;
    void add(const DisplayItem& item);

    float width_;
    float height_;
    Colour backColor_;
    Colour foreColor_ = 0;
    DisplayList displayList_;
};

} // namespace tumble
