#include "platform/web/TextLayout.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tumble {

TextSize textSize(const std::string& text, const WidthOf& widthOf, int lineSpacing, std::optional<int> width) {
    double widest = 0;
    int lines = 0;
    for (std::size_t begin = 0; begin <= text.size(); ++lines) {
        const std::size_t lineFeed = std::min(text.find('\n', begin), text.size());
        std::size_t end = width ? std::min(text.find(' ', begin), lineFeed) : lineFeed;
        while (end < lineFeed) {
            const std::size_t next = std::min(text.find(' ', end + 1), lineFeed);
            if (widthOf(text.substr(begin, next - begin)) > *width) {
                break;
            }
            end = next;
        }
        widest = std::max(widest, widthOf(text.substr(begin, end - begin)));
        begin = end + 1;
    }
    return {static_cast<int>(std::ceil(widest)), lines * lineSpacing, lineSpacing};
}

} // namespace tumble
