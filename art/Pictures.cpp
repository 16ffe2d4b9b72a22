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

bool isBack(int picture) {
    return picture >= firstBackPicture;
}

void paintFace(QPainter& painter, int rank, Suit suit) {
    paintIndex(painter, rank, suit);
    if (rank < firstCourtRank) {
        paintPips(painter, rank, suit);
    } else {
        paintCourt(painter, rank, suit);
    }
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
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / cardWidth, size.height() / cardHeight);
    if (picture == jokerPicture) {
        paintJoker(painter);
    } else {
        paintFace(painter, rankOf(picture), suitOf(picture));
    }
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
