#include "art/Pictures.h"

#include "art/CardBack.h"
#include "art/CornerIndex.h"
#include "art/CourtCards.h"
#include "art/Drawing.h"
#include "art/Icon.h"
#include "art/Joker.h"
#include "art/Palette.h"
#include "art/Pips.h"
#include "art/Symmetry.h"

#include <array>

namespace tumble::art {

namespace {

int rankOf(int picture) {
    return picture / suitCount + 1;
}

Suit suitOf(int picture) {
    return static_cast<Suit>(picture % suitCount);
}

void drawCourtCard(const Drawing& drawing, int rank, Suit suit) {
    paintIndex(drawing, rank, suit);
    paintCourtHalf(drawing, rank, suit);
    rotateUpperHalf(drawing.canvas, courtDividerSlope(drawing.canvas.size()));
}

void drawPipCard(const Drawing& drawing, int rank, Suit suit) {
    paintIndex(drawing, rank, suit);
    paintPairedPips(drawing, rank, suit);
    rotateUpperHalf(drawing.canvas, 0);
    paintSinglePips(drawing, rank, suit);
}

void drawJoker(const Drawing& drawing) {
    paintJokerIndex(drawing);
    rotateUpperHalf(drawing.canvas, 0);
    paintJester(drawing);
}

} // namespace

std::string pictureKey(int picture) {
    static constexpr std::array ranks = {"Ace",   "Two",  "Three", "Four", "Five",  "Six", "Seven",
                                         "Eight", "Nine", "Ten",   "Jack", "Queen", "King"};
    static constexpr std::array suits = {"Clubs", "Diamonds", "Hearts", "Spades"};
    if (picture >= firstBackPicture) {
        return "CardBack" + std::to_string(picture - firstBackPicture + 1);
    }
    if (picture == jokerPicture) {
        return "Joker";
    }
    return std::string(ranks.at(static_cast<std::size_t>(rankOf(picture)) - 1)) +
           suits.at(static_cast<std::size_t>(suitOf(picture)));
}

void drawPicture(int picture, Canvas& canvas) {
    const auto [width, height] = canvas.size();
    const Drawing drawing{canvas, Transform::scaling(width / wholeCard.width, height / wholeCard.height)};
    canvas.fill(canvas.bounds(), white);
    if (picture >= firstBackPicture) {
        drawBack(picture - firstBackPicture, canvas);
    } else if (picture == jokerPicture) {
        drawJoker(drawing);
    } else if (rankOf(picture) >= firstCourtRank) {
        drawCourtCard(drawing, rankOf(picture), suitOf(picture));
    } else {
        drawPipCard(drawing, rankOf(picture), suitOf(picture));
    }
}

bool drawPicture(std::string_view key, Canvas& canvas) {
    for (int picture = 0; picture < pictureCount; ++picture) {
        if (pictureKey(picture) == key) {
            drawPicture(picture, canvas);
            return true;
        }
    }
    const bool isIcon = key == "Tumble";
    if (isIcon) {
        canvas.fill(canvas.bounds(), white);
        drawIcon(canvas);
    }
    return isIcon;
}

std::vector<Colour> picturePalette(int picture) {
    constexpr std::size_t tableSize = 256;
    std::vector<Colour> colours = picture >= firstBackPicture ? backPalette(picture - firstBackPicture) : facePalette();
    colours.resize(tableSize, black);
    return colours;
}

} // namespace tumble::art
