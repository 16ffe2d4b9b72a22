// Writes the pictures of the cards and the icon as GIF files, and the icon in other sizes: draw-cards OUTPUT-FOLDER

#include "art/Drawing.h"
#include "art/Icon.h"
#include "art/Palette.h"
#include "art/Pictures.h"
#include "platform/qt/QtCanvas.h"
#include "tools/Gif.h"
#include "tools/Svg.h"

#include <QString>

#include <exception>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>

namespace tumble::art {

namespace {

void writePictures(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    for (int picture = 0; picture < pictureCount; ++picture) {
        QtCanvas card(cardSize, rgb(255, 255, 255));
        drawPicture(picture, card);
        writeGif(card.image(), picturePalette(picture), folder / (pictureKey(picture) + ".gif"));
    }
    QtCanvas icon({iconWidth, iconWidth}, rgb(255, 255, 255));
    drawIcon(icon);
    writeGif(icon.image(), iconPalette(), folder / "tumble.gif");
}

void writeIcons(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    writeSvg(iconShapes(), iconWidth, folder / "tumble.svg");
    const auto write = [&](const std::string& name, int width, std::optional<Colour> ground, int margin) {
        const std::filesystem::path file = folder / (name + std::to_string(width) + ".png");
        QtCanvas icon({width, width}, ground);
        drawIcon(icon, margin);
        if (!icon.image().convertToFormat(QImage::Format_ARGB32).save(QString::fromStdString(file.string()))) {
            throw std::runtime_error("cannot write " + file.string());
        }
    };
    for (const int width : {16, 24, 32, 48, 64, 128, 192, 256, 512}) {
        write("tumble-", width, {}, 0);
    }
    // Launchers crop maskable icons to shapes that contain a circle of four fifths of the width.
    for (const int width : {192, 512}) {
        write("tumble-maskable-", width, rgb(255, 255, 255), width * 3 / 16);
    }
}

} // namespace

} // namespace tumble::art

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: draw-cards OUTPUT-FOLDER\n";
        return 2;
    }
    try {
        const std::filesystem::path folder = argv[1];
        tumble::art::writePictures(folder);
        tumble::art::writeIcons(folder / "icons");
    } catch (const std::exception& error) {
        std::cerr << "draw-cards: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
