#include "art/Pieces.h"

namespace tumble::art {

void paintPieces(const Drawing& drawing, std::span<const Piece> pieces, const Materials& materials) {
    constexpr double lineWidth = 0.7;
    for (const Piece& piece : pieces) {
        const Fabric& fabric = materials.at(static_cast<std::size_t>(piece.material));
        const Path path = piece.path.path();
        const Pen pen{fabric.background, lineWidth};
        switch (piece.style) {
        case Style::FillPair:
            paintFabric(drawing, mirrored(path), fabric);
            [[fallthrough]];
        case Style::Fill:
            paintFabric(drawing, path, fabric);
            break;
        case Style::FillHalf:
            paintFabric(drawing, completed(path), fabric);
            break;
        case Style::StrokePair:
            drawing.canvas.stroke(mirrored(path), drawing.toPixels, pen);
            [[fallthrough]];
        case Style::Stroke:
            drawing.canvas.stroke(path, drawing.toPixels, pen);
            break;
        }
    }
}

} // namespace tumble::art
