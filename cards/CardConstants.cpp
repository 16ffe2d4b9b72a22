#include "cards/CardConstants.h"

#include <array>
#include <cstddef>

namespace tumble::CardConstants {

std::string rankName(CardRank rank) {
    static constexpr std::array names{"Two",  "Three", "Four", "Five",  "Six",  "Seven", "Eight",
                                      "Nine", "Ten",   "Jack", "Queen", "King", "Ace"};
    return rank >= rkTwo && rank <= rkAce ? names.at(static_cast<std::size_t>(rank - rkTwo)) : "No Rank";
}

std::string suitName(CardSuit suit) {
    static constexpr std::array names{"Diamond", "Club", "Heart", "Spade"};
    return suit >= suDiamond && suit <= suSpade ? names.at(static_cast<std::size_t>(suit)) : "No Suit";
}

std::optional<DeckMakeUp> deckMakeUp(DeckType dckType) {
    switch (dckType) {
    case dtEmpty:
        return DeckMakeUp();
    case dtStandard:
        return DeckMakeUp{.copies = 1, .lowestRank = rkTwo, .jokers = 0};
    case dtStandardWithJokers:
        return DeckMakeUp{.copies = 1, .lowestRank = rkTwo, .jokers = 2};
    case dt36Card:
        return DeckMakeUp{.copies = 1, .lowestRank = rkSix, .jokers = 0};
    case dt32Card:
        return DeckMakeUp{.copies = 1, .lowestRank = rkSeven, .jokers = 0};
    case dt24Card:
        return DeckMakeUp{.copies = 1, .lowestRank = rkNine, .jokers = 0};
    case dtDouble:
        return DeckMakeUp{.copies = 2, .lowestRank = rkTwo, .jokers = 0};
    case dtPinochle:
        return DeckMakeUp{.copies = 2, .lowestRank = rkNine, .jokers = 0};
    case dtBigPinochle:
        return DeckMakeUp{.copies = 2, .lowestRank = rkSeven, .jokers = 0};
    }
    return std::nullopt;
}

} // namespace tumble::CardConstants
