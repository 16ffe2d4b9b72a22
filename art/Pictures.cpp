#include "art/Pictures.h"

#include "art/Back.h"
#include "art/CardDrawing.h"
#include "art/Courts.h"
#include "art/Joker.h"
#include "art/Palette.h"
#include "art/Pips.h"

#include <array>

namespace tumble::art {

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
void paintUpperHalf(const Drawing& drawing, int picture) {
    if (picture == jokerPicture) {
        paintJokerMark(drawing);
        return;
    }
    paintIndex(drawing, rankOf(picture), suitOf(picture));
    if (isCourt(picture)) {
        paintCourt(drawing, rankOf(picture), suitOf(picture));
    } else {
        paintPairedPips(drawing, rankOf(picture), suitOf(picture));
    }
}

void paintRest(const Drawing& drawing, int picture) {
    if (picture == jokerPicture) {
        paintJester(drawing);
    } else if (!isCourt(picture)) {
        paintSinglePips(drawing, rankOf(picture), suitOf(picture));
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

void drawPicture(int picture, Canvas& canvas) {
    if (isBack(picture)) {
        drawBack(picture - firstBackPicture, canvas);
        return;
    }
    const PixelSize size = canvas.size();
    const Drawing drawing{canvas, Transform::scaling(size.width / cardWidth, size.height / cardHeight)};
    canvas.fill(canvas.bounds(), white);
    paintUpperHalf(drawing, picture);
    repeatUpsideDown(canvas, isCourt(picture) ? courtFall(size) : 0);
    paintRest(drawing, picture);
}

bool drawPicture(std::string_view key, Canvas& canvas) {
    for (int picture = 0; picture < pictureCount; ++picture) {
        if (pictureKey(picture) == key) {
            drawPicture(picture, canvas);
            return true;
        }
    }
    if (key == iconKey) {
        canvas.fill(canvas.bounds(), white);
        drawIcon(canvas);
    }
    return key == iconKey;
}

std::vector<Colour> pictureColours(int picture) {
    constexpr std::size_t tableSize = 256;
    std::vector<Colour> colours = isBack(picture) ? backColours(picture - firstBackPicture) : faceColours();
    colours.resize(tableSize, black);
    return colours;
}

} // namespace tumble::art
