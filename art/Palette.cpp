#include "art/Palette.h"

#include <cstddef>

namespace tumble::art {

namespace {

/// A mixture in so many parts of each colour; black adds nothing to a channel.
Colour mixture(int blacks, int reds, int yellows, int whites) {
    const int parts = blacks + reds + yellows + whites;
    const auto mixed = [&](std::size_t channel) {
        const auto of = [channel](Colour colour) { return channels(colour).at(channel); };
        return (reds * of(red) + yellows * of(yellow) + whites * of(white) + parts / 2) / parts;
    };
    return rgb(mixed(0), mixed(1), mixed(2));
}

} // namespace

std::vector<Colour> facePalette() {
    constexpr int parts = 9;
    constexpr int fineParts = 19;
    std::vector<Colour> colours;
    for (int blacks = 0; blacks <= parts; ++blacks) {
        for (int reds = 0; blacks + reds <= parts; ++reds) {
            for (int yellows = 0; blacks + reds + yellows <= parts; ++yellows) {
                colours.push_back(mixture(blacks, reds, yellows, parts - blacks - reds - yellows));
            }
        }
    }
    for (int part = 1; part < fineParts; ++part) {
        colours.push_back(mixture(part, 0, 0, fineParts - part));
        colours.push_back(mixture(0, part, 0, fineParts - part));
    }
    return colours;
}

std::vector<Colour> iconPalette() {
    constexpr int parts = 7;
    std::vector<Colour> colours = {white};
    for (int part = 1; part <= parts; ++part) {
        colours.push_back(mixture(part, 0, 0, parts - part));
        colours.push_back(mixture(0, part, 0, parts - part));
    }
    colours.push_back(black);
    return colours;
}

} // namespace tumble::art
