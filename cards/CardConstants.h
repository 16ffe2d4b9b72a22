#pragma once

#include "platform/base/Colour.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tumble {

// The game's value sets. Each has a fixed underlying type, so that a value outside the set is still a value.

/// Ace is the highest rank; `rkNone` is the rank of a card that was never given one, and so of every joker.
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

/// In the order in which suits are compared.
enum CardSuit : std::int32_t { suDiamond, suClub, suHeart, suSpade };

/// 729 by 1134, 900 by 1400 and 1233 by 1918 twips.
enum CardSize : std::int32_t { csSmall, csMedium, csNormal };

/// Every value but `fdFaceDown` shows the face.
enum FaceDirection : std::int32_t { fdFaceUp = -1, fdFaceDown = 0 };

/// The back design, 1 to 4.
enum BackStyle : std::int32_t { bsFirst = 1, bsLast = 4 };

/// What kind of object a card is on the table: none yet (0), a card, or the card that stands for a pile.
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

/// A Boolean; every value but `lsSpread` lays the deck as one pile.
enum LayoutStyle : std::int16_t { lsInPile = -1, lsSpread = 0 };

/// Which edge of a card a coordinate names: left or top, the middle, or (every other value) right or bottom.
enum PileAlign : std::int32_t { paNear, paCenter, paFar };

/// The ground of every surface that cards lie on: pure green, blue and yellow and black and red all stand out on it.
inline constexpr Colour tableGreen = 0x405A1E;

/// What a deck is built from; as it stands here, nothing.
struct DeckMakeUp {
    int copies = 0;
    CardRank lowestRank = rkNone; ///< from which each copy runs up to Ace in all four suits
    int jokers = 0;

    int cards() const { return copies * 4 * (rkAce - lowestRank + 1) + jokers; }
};

namespace CardConstants {

/// "Two" to "Ace"; "No Rank" for every value outside the set.
std::string rankName(CardRank rank);

/// "Diamond", "Club", "Heart" or "Spade"; "No Suit" for every value outside the set. The plural adds an "s".
std::string suitName(CardSuit suit);

/// Nothing for every value outside the set.
std::optional<DeckMakeUp> deckMakeUp(DeckType dckType);

} // namespace CardConstants

} // namespace tumble
