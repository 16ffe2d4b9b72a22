#include "tools/Gif.h"

#include <gif_lib.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>

namespace tumble::art {

namespace {

/// How far apart two colours look. A difference in hue counts besides the one in the channels, so that grey stays grey.
int distance(Colour a, Colour b) {
    const auto square = [](int value) { return value * value; };
    const auto [redA, greenA, blueA] = channels(a);
    const auto [redB, greenB, blueB] = channels(b);
    const int reds = redA - redB;
    const int greens = greenA - greenB;
    const int blues = blueA - blueB;
    return square(reds) + square(greens) + square(blues) + square(reds - greens) + square(greens - blues);
}

GifPixelType nearest(const std::vector<Colour>& colours, Colour pixel) {
    const auto closer = [pixel](Colour a, Colour b) { return distance(a, pixel) < distance(b, pixel); };
    return static_cast<GifPixelType>(std::min_element(colours.begin(), colours.end(), closer) - colours.begin());
}

struct FreeColourMap {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};

using ColourMap = std::unique_ptr<ColorMapObject, FreeColourMap>;

ColourMap colourMap(const std::vector<Colour>& colours) {
    std::vector<GifColorType> entries;
    entries.reserve(colours.size());
    for (const Colour colour : colours) {
        const auto [red, green, blue] = channels(colour);
        entries.push_back(
            {static_cast<GifByteType>(red), static_cast<GifByteType>(green), static_cast<GifByteType>(blue)});
    }
    return ColourMap(GifMakeMapObject(static_cast<int>(entries.size()), entries.data()));
}

void check(bool worked, const std::filesystem::path& file) {
    if (!worked) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

bool writeImage(GifFileType* gif, const QImage& picture, const std::vector<Colour>& colours) {
    const ColourMap map = colourMap(colours);
    EGifSetGifVersion(gif, false);
    bool worked =
        EGifPutScreenDesc(gif, picture.width(), picture.height(), map->BitsPerPixel, 0, map.get()) == GIF_OK &&
        EGifPutImageDesc(gif, 0, 0, picture.width(), picture.height(), false, nullptr) == GIF_OK;
    std::vector<GifPixelType> line(static_cast<std::size_t>(picture.width()));
    for (int y = 0; worked && y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            line[static_cast<std::size_t>(x)] = nearest(colours, rgb(pixel.red(), pixel.green(), pixel.blue()));
        }
        worked = EGifPutLine(gif, line.data(), picture.width()) == GIF_OK;
    }
    return worked;
}

} // namespace

void writeGif(const QImage& picture, const std::vector<Colour>& colours, const std::filesystem::path& file) {
    GifFileType* gif = EGifOpenFileName(file.c_str(), false, nullptr);
    check(gif != nullptr, file);
    const bool written = writeImage(gif, picture, colours);
    const bool closed = EGifCloseFile(gif, nullptr) == GIF_OK;
    check(written && closed, file);
}

} // namespace tumble::art
