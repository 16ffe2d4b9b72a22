#pragma once

#include "platform/base/Colour.h"
#include "platform/base/PixelScale.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <variant>
#include <vector>

namespace tumble {

struct Picture;

/// A picture scaled to fill `box`.
struct PictureOperation {
    const Picture* picture;
    Rect box;
    friend bool operator==(const PictureOperation&, const PictureOperation&) = default;
};

/// A box filled with one colour, edges included.
struct FillOperation {
    Rect box;
    Colour colour;
    friend bool operator==(const FillOperation&, const FillOperation&) = default;
};

/// The outline of a box, drawn inside it.
struct BoxOperation {
    Rect box;
    Colour colour;
    friend bool operator==(const BoxOperation&, const BoxOperation&) = default;
};

/// A straight line, both ends included.
struct LineOperation {
    Point from;
    Point to;
    Colour colour;
    friend bool operator==(const LineOperation&, const LineOperation&) = default;
};

/// The outline of a circle.
struct CircleOperation {
    Point centre;
    float radius;
    Colour colour;
    friend bool operator==(const CircleOperation&, const CircleOperation&) = default;
};

using Operation = std::variant<PictureOperation, FillOperation, BoxOperation, LineOperation, CircleOperation>;

/// A vector that holds up to three operations without allocating: each step of a drag creates one for each card.
class Operations {
public:
    Operations() = default;
    Operations(std::initializer_list<Operation> operations) {
        std::for_each(operations.begin(), operations.end(), [this](const auto& operation) { push_back(operation); });
    }

    void push_back(const Operation& operation);

    std::size_t size() const { return size_; }
    const Operation* begin() const { return allocated_.empty() ? inPlace_.data() : allocated_.data(); }
    const Operation* end() const { return begin() + size_; }
    const Operation& front() const { return *begin(); }
    const Operation& back() const { return *(end() - 1); }

    friend bool operator==(const Operations& a, const Operations& b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

private:
    std::array<Operation, 3> inPlace_;
    std::size_t size_ = 0;
    std::vector<Operation> allocated_; // all of them, when they are more than three
};

/// Operations in their order, clipped to `bounds`.
struct DisplayItem {
    Rect bounds;
    Operations operations;

    /// True when the first operation covers the bounds.
    bool opaque() const;
    /// True when the only operation is a fill with `ground`.
    bool erases(Colour ground) const;

    friend bool operator==(const DisplayItem&, const DisplayItem&) = default;
};

/// The ground of a drawing surface and the items that still show on it, oldest first. An opaque item removes earlier
/// items that it covers completely. A fill with the ground is removed once nothing remains beneath it. At every scale
/// the list gives the same pixels as all items ever added.
class DisplayList {
public:
    /// An empty list for a surface of `width` by `height` twips.
    DisplayList(float width, float height, Colour ground);

    /// A widget is a whole number of pixels wide and may extend beyond the surface by up to so many twips.
    static constexpr float overhang = 5 * widestPixel;

    /// Ignores an item whose bounds are empty, or lie off the surface by more than the overhang.
    void add(const DisplayItem& item);
    void clear(Colour ground);

    /// The whole surface, in twips.
    Rect bounds() const { return bounds_; }
    Colour ground() const { return ground_; }
    const std::vector<DisplayItem>& items() const;

    /// Assigns another list of the same surface and returns the damage: a rectangle in twips that contains all that may
    /// look different, the overhang included. It is empty when nothing does.
    Rect replaceWith(const DisplayList& other);

private:
    void prune() const;

    Rect bounds_;
    Colour ground_;
    // Only the first `pruned_` items are known to show; the rest is pruned when the list is read or has grown long.
    mutable std::vector<DisplayItem> items_;
    mutable std::size_t pruned_ = 0;
};

} // namespace tumble
