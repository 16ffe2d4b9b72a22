#include "art/PathData.h"

namespace tumble::art {

Path PathData::path() const {
    Path path;
    for (std::string_view rest = text_; !rest.empty();) {
        const auto& [name, n] = parseCommand(rest);
        switch (name) {
        case 'M':
            path.moveTo({n[0], n[1]});
            break;
        case 'L':
            path.lineTo({n[0], n[1]});
            break;
        case 'Q':
            path.curveTo({n[0], n[1]}, {n[2], n[3]});
            break;
        case 'C':
            path.curveTo({n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]});
            break;
        case 'O':
            path.addCircle({n[0], n[1]}, n[2]);
            break;
        default:
            path.close();
        }
    }
    return path;
}

} // namespace tumble::art
