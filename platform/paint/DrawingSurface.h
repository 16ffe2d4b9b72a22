#pragma once

#include "platform/base/NonMovable.h"
#include "platform/paint/DisplayList.h"

#include <optional>

namespace tumble {

class DrawingSurface;

enum class BoxFill { Outline, Filled };

/// Records one display item; its destructor adds the item to the surface. Coordinates are the surface's twips; painting
/// is clipped to the item's bounds.
class ItemPainter : private NonMovable {
public:
    ItemPainter(DrawingSurface& surface, const Rect& bounds);
    ~ItemPainter();

    /// Scales the whole picture into the box; the picture must outlive the surface.
    void PaintPicture(const Picture& picture, float x, float y, float width, float height);
    void Line(Point from, Point to, Colour colour);
    /// A line from where the last one ended (at first, from the top left corner of the bounds).
    void Line(Point to, Colour colour);
    /// The default colour is the surface's `ForeColor`.
    void Line(const Rect& box, std::optional<Colour> colour, BoxFill fill);
    /// `radius` in twips.
    void Circle(Point centre, float radius, Colour colour);

private:
    DrawingSurface& surface_;
    DisplayItem item_;
    Point current_;
};

/// What cards paint on. Its display list survives whatever covers the window.
class DrawingSurface : private NonMovable {
public:
    /// `width` and `height` in twips; the surface starts cleared to `backColor`.
    DrawingSurface(float width, float height, Colour backColor);
    virtual ~DrawingSurface() = default;

    float Width() const { return width_; }
    float Height() const { return height_; }

    Colour BackColor() const { return backColor_; }
    /// Does not change what is already painted.
    void BackColor(Colour colour) { backColor_ = colour; }
    Colour ForeColor() const { return foreColor_; }
    void ForeColor(Colour colour) { foreColor_ = colour; }

    [[nodiscard]] ItemPainter Paint(const Rect& bounds) { return {*this, bounds}; }
    /// Clears the surface to `BackColor`.
    void Cls();

    const DisplayList& displayList() const { return displayList_; }

protected:
    /// Called with each item after it is added; for `Cls`, with a fill of the whole surface.
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
