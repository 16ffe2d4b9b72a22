#include "cards/CardImages.h"

#include "assets/Assets.h"
#include "cards/CardConstants.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace tumble::CardImages {

namespace {

std::vector<Picture> makeSet() {
    std::vector<Picture> set;
    const auto add = [&](std::string key) { set.emplace_back(std::move(key), Assets::cardPicture(set.size())); };
    constexpr std::array ranks{rkAce,   rkTwo,  rkThree, rkFour, rkFive,  rkSix, rkSeven,
                               rkEight, rkNine, rkTen,   rkJack, rkQueen, rkKing};
    constexpr std::array suits{suClub, suDiamond, suHeart, suSpade};
    for (const CardRank rank : ranks) {
        for (const CardSuit suit : suits) {
            add(CardConstants::rankName(rank) + CardConstants::suitName(suit) + "s");
        }
    }
    add("Joker");
    for (int style = bsFirst; style <= bsLast; ++style) {
        add("CardBack" + std::to_string(style));
    }
    return set;
}

} // namespace

const std::vector<Picture>& pictures() {
    static const std::vector<Picture> set = makeSet();
    return set;
}

const Picture& find(std::string_view key) {
    static const Picture missing{"", {}};
    const auto& set = pictures();
    const auto found = std::find_if(set.begin(), set.end(), [&](const Picture& picture) { return picture.Key == key; });
    return found == set.end() ? missing : *found;
}

} // namespace tumble::CardImages
