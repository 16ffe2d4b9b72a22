// Writes the pictures of the cards and the icon as GIF files: draw-cards OUTPUT-FOLDER

#include "art/Pictures.h"
#include "tools/Gif.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: draw-cards OUTPUT-FOLDER\n";
        return 2;
    }
    try {
        const std::filesystem::path folder = argv[1];
        std::filesystem::create_directories(folder);
        for (int picture = 0; picture < tumble::pictureCount; ++picture) {
            tumble::writeGif(tumble::drawPicture(picture, tumble::cardSize), tumble::pictureColours(picture),
                             folder / (tumble::pictureKey(picture) + ".gif"));
        }
        tumble::writeGif(tumble::drawIcon({32, 32}), tumble::iconColours(), folder / "tumble.gif");
    } catch (const std::exception& error) {
        std::cerr << "draw-cards: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
