#include "tools/Gif.h"

#include <gif_lib.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>

namespace tumble::art {

namespace {

/// How different two colours look. A difference in hue counts besides those of the channels, so that grey stays grey.
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

std::vector<GifColorType> colourTable(const std::vector<Colour>& colours) {
    std::vector<GifColorType> table;
    table.reserve(colours.size());
    for (const Colour colour : colours) {
        const auto [red, green, blue] = channels(colour);
        table.push_back(
            {static_cast<GifByteType>(red), static_cast<GifByteType>(green), static_cast<GifByteType>(blue)});
    }
    return table;
}

bool writeImage(GifFileType* gif, const QImage& picture, const std::vector<Colour>& colours) {
    const std::vector<GifColorType> table = colourTable(colours);
    const std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)> map(
        GifMakeMapObject(static_cast<int>(table.size()), table.data()), GifFreeMapObject);
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
    const bool written = gif != nullptr && writeImage(gif, picture, colours);
    const bool closed = gif != nullptr && EGifCloseFile(gif, nullptr) == GIF_OK;
    if (!written || !closed) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

} // namespace tumble::art
