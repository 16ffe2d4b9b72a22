#pragma once

#include "art/Ink.h"

#include <QPainter>

#include <array>
#include <span>

namespace tumble {

/// How a cloth is patterned; every pattern is symmetrical about the axis x = 0.
enum class Weave { Plain, Stripes, Lozenges, Dots, Chevrons, Ermine };

struct Fabric {
    QRgb ground = white;
    Weave weave = Weave::Plain;
    QRgb thread = black;
};

/// What a piece of a figure is made of: four plain inks, ermine, and what differs from figure to figure.
enum class Cloth { Black, Red, Yellow, White, Fur, Hair, Curl, Mantle, Front, Sleeve, Trim };
inline constexpr std::size_t clothCount = 11;

/// The fabric of each cloth.
using Wardrobe = std::array<Fabric, clothCount>;

/// The wardrobe of a figure; its curls are drawn in black, or in white on black hair.
constexpr Wardrobe dressed(QRgb hair, Fabric mantle, Fabric front, Fabric sleeve, Fabric trim) {
    const Fabric fur{white, Weave::Ermine, black};
    const QRgb curl = hair == black ? white : black;
    return {{{black}, {red}, {yellow}, {white}, fur, {hair}, {curl}, mantle, front, sleeve, trim}};
}

/// A filled piece has a black outline; a line has nothing else.
enum class Form {
    Single, ///< Filled as it stands.
    Twins,  ///< Filled, and filled again mirrored in the axis x = 0.
    Whole,  ///< The right half of one filled shape.
    Line,   ///< A line as it stands.
    Lines,  ///< A line and its mirror image.
};

/// A part of a figure: the outline is in card units.
struct Piece {
    Cloth cloth;
    Form form;
    const char* outline;
};

void paintPieces(QPainter& painter, std::span<const Piece> pieces, const Wardrobe& wardrobe);

/// Fills a shape with a fabric and draws its outline.
void paintFabric(QPainter& painter, const QPainterPath& shape, const Fabric& fabric);

} // namespace tumble
