#include "art/Pictures.h"

#include "art/Back.h"
#include "art/Courts.h"
#include "art/Ink.h"
#include "art/Joker.h"
#include "art/Marks.h"
#include "art/Pips.h"

#include <array>

namespace tumble {

namespace {

int rankOf(int picture) {
    return picture / suitCount + 1;
}

Suit suitOf(int picture) {
    return static_cast<Suit>(picture % suitCount);
}

bool isCourt(int picture) {
    return picture < faceCount && rankOf(picture) >= firstCourtRank;
}

bool isBack(int picture) {
    return picture >= firstBackPicture;
}

/// Paints what the lower half shows upside down, as far as it lies above the middle.
void paintUpperHalf(QPainter& painter, int picture) {
    if (picture == jokerPicture) {
        paintJokerMark(painter);
        return;
    }
    paintIndex(painter, rankOf(picture), suitOf(picture));
    if (isCourt(picture)) {
        paintCourt(painter, rankOf(picture), suitOf(picture));
    } else {
        paintPairedPips(painter, rankOf(picture), suitOf(picture));
    }
}

void paintRest(QPainter& painter, int picture) {
    if (picture == jokerPicture) {
        paintJester(painter);
    } else if (!isCourt(picture)) {
        paintSinglePips(painter, rankOf(picture), suitOf(picture));
    }
}

void paint(QImage& image, void (*part)(QPainter&, int), int picture) {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(image.width() / cardWidth, image.height() / cardHeight);
    part(painter, picture);
}

} // namespace

std::string pictureKey(int picture) {
    static constexpr std::array ranks = {"Ace",   "Two",  "Three", "Four", "Five",  "Six", "Seven",
                                         "Eight", "Nine", "Ten",   "Jack", "Queen", "King"};
    static constexpr std::array suits = {"Clubs", "Diamonds", "Hearts", "Spades"};
    if (isBack(picture)) {
        return "CardBack" + std::to_string(picture - firstBackPicture + 1);
    }
    if (picture == jokerPicture) {
        return "Joker";
    }
    return std::string(ranks.at(static_cast<std::size_t>(rankOf(picture)) - 1)) +
           suits.at(static_cast<std::size_t>(suitOf(picture)));
}

QImage drawPicture(int picture, QSize size) {
    if (isBack(picture)) {
        return drawBack(picture - firstBackPicture, size);
    }
    QImage image(size, QImage::Format_RGB32);
    image.fill(white);
    paint(image, paintUpperHalf, picture);
    repeatUpsideDown(image, isCourt(picture) ? courtFall(size) : 0);
    paint(image, paintRest, picture);
    return image;
}

QImage drawPicture(std::string_view key, QSize size) {
    for (int picture = 0; picture < pictureCount; ++picture) {
        if (pictureKey(picture) == key) {
            return drawPicture(picture, size);
        }
    }
    return key == iconKey ? drawIcon(size) : QImage();
}

std::vector<QRgb> pictureColours(int picture) {
    constexpr std::size_t tableSize = 256;
    std::vector<QRgb> colours = isBack(picture) ? backColours(picture - firstBackPicture) : faceColours();
    colours.resize(tableSize, black);
    return colours;
}

} // namespace tumble
