#pragma once

#include "platform/base/Geometry.h"

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

/// A list of operations that keeps a few in itself: a step of a drag makes and drops one such list for each card.
class Operations {
public:
    Operations() = default;
    Operations(std::initializer_list<Operation> operations) {
        std::for_each(operations.begin(), operations.end(), [this](const auto& operation) { push_back(operation); });
    }

    void push_back(const Operation& operation);

    std::size_t size() const { return few_ + many_.size(); }
    bool empty() const { return size() == 0; }
    const Operation* begin() const { return many_.empty() ? area_.data() : many_.data(); }
    const Operation* end() const { return begin() + size(); }
    const Operation& front() const { return *begin(); }
    const Operation& back() const { return *(end() - 1); }

    friend bool operator==(const Operations& a, const Operations& b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

private:
    std::array<Operation, 3> area_;
    std::size_t few_ = 0;
    std::vector<Operation> many_; // all of them, when they are more
};

/// One bracketed piece of painting: the operations in their order, clipped to `place`.
struct DisplayItem {
    Rect place;
    Operations operations;

    /// True when the first operation covers the whole place, so that nothing beneath can show.
    bool opaque() const;
    /// True when all it does is to fill its place with `ground`.
    bool erases(Colour ground) const;

    friend bool operator==(const DisplayItem&, const DisplayItem&) = default;
};

/// What shows on a drawing surface: a ground of one colour and the items that still show on it, oldest first.
/// DisplayList the list gives the same pixels, at every scale from the least up, as painting everything that was ever
/// added.
class DisplayList {
public:
    /// An empty painting; `width` and `height` of the surface in twips.
    DisplayList(float width, float height, Colour ground);

    /// A widget is a whole number of pixels wide and may reach over the surface's edge by up to so many twips.
    static constexpr float overhang = 5 * widestPixel;

    /// Lays an item over the painting. An item with an empty place, or with one that lies off the surface by more than
    /// the overhang, adds nothing.
    void add(const DisplayItem& item);
    void clear(Colour ground);

    /// The whole surface, in twips.
    Rect bounds() const { return bounds_; }
    Colour ground() const { return ground_; }
    const std::vector<DisplayItem>& items() const;

    /// Becomes another painting of the same surface, and returns where it may look other than before, in twips, the
    /// overhang included; empty when it does nowhere.
    Rect replaceWith(const DisplayList& other);

private:
    void prune() const;

    Rect bounds_;
    Colour ground_;
    // The first `pruned_` still show. Of the rest some may not: they are looked through all at once, when somebody
    // asks or when they have become many.
    mutable std::vector<DisplayItem> items_;
    mutable std::size_t pruned_ = 0;
};

} // namespace tumble
