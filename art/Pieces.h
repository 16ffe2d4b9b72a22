#pragma once

#include "art/Fabric.h"
#include "art/PathData.h"

#include <array>
#include <cstddef>
#include <span>

namespace tumble::art {

/// What a piece of a figure is made of: four plain colours, ermine, and what differs from figure to figure.
enum class Material { Black, Red, Yellow, White, Fur, Hair, Curl, Mantle, Front, Sleeve, Trim };
inline constexpr std::size_t materialCount = 11;

/// The fabric of each material.
using Materials = std::array<Fabric, materialCount>;

/// The materials of a figure. Its curls are black lines in the hair, or white ones in black hair.
constexpr Materials materials(Colour hair, Fabric mantle, Fabric front, Fabric sleeve, Fabric trim) {
    const Fabric fur{white, Pattern::Ermine, black};
    const Colour curl = hair == black ? white : black;
    return {{{black}, {red}, {yellow}, {white}, fur, {hair}, {curl}, mantle, front, sleeve, trim}};
}

/// How a piece is painted. What is filled gets a black outline as well.
enum class Style {
    Fill,       ///< The path is a filled shape.
    FillPair,   ///< A filled shape and its mirror image in the axis x = 0.
    FillHalf,   ///< The right half of a filled shape that is symmetrical about the axis.
    Stroke,     ///< A line.
    StrokePair, ///< A line and its mirror image.
};

/// A part of a figure, in card units.
struct Piece {
    Material material;
    Style style;
    PathData path;
};

/// Paints pieces one over the other.
void paintPieces(const Drawing& drawing, std::span<const Piece> pieces, const Materials& materials);

} // namespace tumble::art
