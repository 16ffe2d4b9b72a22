#include "art/Pieces.h"

namespace tumble::art {

void paintPieces(const Drawing& drawing, std::span<const Piece> pieces, const Materials& materials) {
    constexpr double lineWidth = 0.7;
    for (const Piece& piece : pieces) {
        const Fabric& fabric = materials.at(static_cast<std::size_t>(piece.material));
        const Path path = piece.path.path();
        const auto paint = [&](const Path& shape) {
            if (piece.style == Style::Stroke || piece.style == Style::StrokePair) {
                drawing.canvas.stroke(shape, drawing.toPixels, {fabric.background, lineWidth});
            } else {
                paintFabric(drawing, shape, fabric);
            }
        };
        if (piece.style == Style::FillPair || piece.style == Style::StrokePair) {
            paint(mirrored(path));
        }
        paint(piece.style == Style::FillHalf ? completed(path) : path);
    }
}

} // namespace tumble::art
