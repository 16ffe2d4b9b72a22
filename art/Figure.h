#pragma once

#include "art/Drawing.h"
#include "art/Outline.h"
#include "art/Palette.h"

#include <array>
#include <cstddef>
#include <span>

namespace tumble {

/// How a cloth is patterned; every pattern is symmetrical about the axis x = 0.
enum class Weave { Plain, Stripes, Lozenges, Dots, Chevrons, Ermine };

struct Fabric {
    Colour ground = white;
    Weave weave = Weave::Plain;
    Colour thread = black;
};

/// What a piece of a figure is made of: four plain inks, ermine, and what differs from figure to figure.
enum class Cloth { Black, Red, Yellow, White, Fur, Hair, Curl, Mantle, Front, Sleeve, Trim };
inline constexpr std::size_t clothCount = 11;

/// The fabric of each cloth.
using Wardrobe = std::array<Fabric, clothCount>;

/// The wardrobe of a figure; its curls are drawn in black, or in white on black hair.
constexpr Wardrobe dressed(Colour hair, Fabric mantle, Fabric front, Fabric sleeve, Fabric trim) {
    const Fabric fur{white, Weave::Ermine, black};
    const Colour curl = hair == black ? white : black;
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
    Outline outline;
};

void paintPieces(const Drawing& drawing, std::span<const Piece> pieces, const Wardrobe& wardrobe);

/// Fills a shape with a fabric and draws its outline.
void paintFabric(const Drawing& drawing, const Path& shape, const Fabric& fabric);

} // namespace tumble
