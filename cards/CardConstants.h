#pragma once

#include "platform/base/Colour.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tumble {

// The game's sets of values. Each has a fixed underlying type, so a value outside the set is still a value.

/// Ace is the highest rank. `rkNone` is the rank of a card whose rank was never set, such as a new joker.
enum CardRank : std::int32_t {
    rkNone = 0,
    rkTwo = 2,
    rkThree,
    rkFour,
    rkFive,
    rkSix,
    rkSeven,
    rkEight,
    rkNine,
    rkTen,
    rkJack,
    rkQueen,
    rkKing,
    rkAce
};

/// In ascending order.
enum CardSuit : std::int32_t { suDiamond, suClub, suHeart, suSpade };

/// 729 by 1134, 900 by 1400 and 1233 by 1918 twips.
enum CardSize : std::int32_t { csSmall, csMedium, csNormal };

/// Every value except `fdFaceDown` shows the face.
enum FaceDirection : std::int32_t { fdFaceUp = -1, fdFaceDown = 0 };

/// The back design, 1 to 4.
enum BackStyle : std::int32_t { bsFirst = 1, bsLast = 4 };

/// The kind of a card on the table: 0 for none yet, a playing card, or the card that represents a pile.
enum CardVisibility : std::int32_t { vsCard = 1, vsPile = 2 };

enum DeckType : std::int32_t {
    dtEmpty,
    dtStandard,
    dtStandardWithJokers,
    dt36Card,
    dt32Card,
    dt24Card,
    dtDouble,
    dtPinochle,
    dtBigPinochle
};

/// Ascending runs from the bottom of the pack to its top.
enum SortOrder : std::int32_t { soNatural, soShuffled, soRankSuitAsc, soRankSuitDesc, soSuitRankAsc, soSuitRankDesc };

/// A Boolean: every value except `lsSpread` lays the deck as one pile.
enum LayoutStyle : std::int16_t { lsInPile = -1, lsSpread = 0 };

/// The edge of a card that a coordinate means: left or top, the middle, or (every other value) right or bottom.
enum PileAlign : std::int32_t { paNear, paCenter, paFar };

/// The table's background: pure green, blue, yellow, black and red all stand out on it.
inline constexpr Colour tableGreen = 0x405A1E;

/// The contents of a deck; by default none.
struct DeckMakeUp {
    int copies = 0;               ///< each has all four suits
    CardRank lowestRank = rkNone; ///< the ranks run from this one to Ace
    int jokers = 0;

    int cards() const { return copies * 4 * (rkAce - lowestRank + 1) + jokers; }
};

namespace CardConstants {

/// "Two" to "Ace"; "No Rank" for every value outside the set.
std::string rankName(CardRank rank);

/// "Diamond", "Club", "Heart" or "Spade"; "No Suit" for every value outside the set.
std::string suitName(CardSuit suit);

/// Empty for every value outside the set.
std::optional<DeckMakeUp> deckMakeUp(DeckType dckType);

} // namespace CardConstants

} // namespace tumble
