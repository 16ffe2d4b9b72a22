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
    static constexpr std::array<DeckMakeUp, 9> decks{{
        {},                                                // dtEmpty
        {.copies = 1, .lowestRank = rkTwo, .jokers = 0},   // dtStandard
        {.copies = 1, .lowestRank = rkTwo, .jokers = 2},   // dtStandardWithJokers
        {.copies = 1, .lowestRank = rkSix, .jokers = 0},   // dt36Card
        {.copies = 1, .lowestRank = rkSeven, .jokers = 0}, // dt32Card
        {.copies = 1, .lowestRank = rkNine, .jokers = 0},  // dt24Card
        {.copies = 2, .lowestRank = rkTwo, .jokers = 0},   // dtDouble
        {.copies = 2, .lowestRank = rkNine, .jokers = 0},  // dtPinochle
        {.copies = 2, .lowestRank = rkSeven, .jokers = 0}, // dtBigPinochle
    }};
    const bool known = dckType >= dtEmpty && dckType <= dtBigPinochle;
    return known ? std::optional(decks.at(static_cast<std::size_t>(dckType))) : std::nullopt;
}

} // namespace tumble::CardConstants
