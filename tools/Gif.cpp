#include "tools/Gif.h"

#include <gif_lib.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>

namespace tumble {

namespace {

/// How far apart two colours look. A difference in hue counts besides the one in the channels, so that grey stays grey.
int distance(QRgb a, QRgb b) {
    const auto square = [](int value) { return value * value; };
    const int reds = qRed(a) - qRed(b);
    const int greens = qGreen(a) - qGreen(b);
    const int blues = qBlue(a) - qBlue(b);
    return square(reds) + square(greens) + square(blues) + square(reds - greens) + square(greens - blues);
}

GifPixelType nearest(const std::vector<QRgb>& colours, QRgb pixel) {
    const auto closer = [pixel](QRgb a, QRgb b) { return distance(a, pixel) < distance(b, pixel); };
    return static_cast<GifPixelType>(std::min_element(colours.begin(), colours.end(), closer) - colours.begin());
}

struct FreeColourMap {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};

using ColourMap = std::unique_ptr<ColorMapObject, FreeColourMap>;

ColourMap colourMap(const std::vector<QRgb>& colours) {
    std::vector<GifColorType> entries;
    entries.reserve(colours.size());
    for (const QRgb colour : colours) {
        entries.push_back({static_cast<GifByteType>(qRed(colour)), static_cast<GifByteType>(qGreen(colour)),
                           static_cast<GifByteType>(qBlue(colour))});
    }
    return ColourMap(GifMakeMapObject(static_cast<int>(entries.size()), entries.data()));
}

void check(bool worked, const std::filesystem::path& file) {
    if (!worked) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

bool writeImage(GifFileType* gif, const QImage& picture, const std::vector<QRgb>& colours) {
    const ColourMap map = colourMap(colours);
    EGifSetGifVersion(gif, false);
    bool worked =
        EGifPutScreenDesc(gif, picture.width(), picture.height(), map->BitsPerPixel, 0, map.get()) == GIF_OK &&
        EGifPutImageDesc(gif, 0, 0, picture.width(), picture.height(), false, nullptr) == GIF_OK;
    std::vector<GifPixelType> line(static_cast<std::size_t>(picture.width()));
    for (int y = 0; worked && y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            line[static_cast<std::size_t>(x)] = nearest(colours, picture.pixel(x, y));
        }
        worked = EGifPutLine(gif, line.data(), picture.width()) == GIF_OK;
    }
    return worked;
}

} // namespace

void writeGif(const QImage& picture, const std::vector<QRgb>& colours, const std::filesystem::path& file) {
    GifFileType* gif = EGifOpenFileName(file.c_str(), false, nullptr);
    check(gif != nullptr, file);
    const bool written = writeImage(gif, picture, colours);
    const bool closed = EGifCloseFile(gif, nullptr) == GIF_OK;
    check(written && closed, file);
}

} // namespace tumble
