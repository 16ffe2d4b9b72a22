#pragma once

#include "cards/CardConstants.h"
#include "cards/Pile.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tumble {

/// The rules of the corner piles. An empty pile accepts the lowest rank of the deck. Any other pile accepts its top
/// card's suit in the same rank or the next higher one. A joker is accepted everywhere and accepts any card. The player
/// is told why a card is refused and when the game is won. No card is moved.
class PileAccepterTumble : public PileAccepter {
public:
    /// `numPileCards` returns the number of cards on all corner piles.
    explicit PileAccepterTumble(std::function<std::int16_t()> numPileCards);

    /// An empty or unknown deck is reported to the player. The lowest rank then stays as it was, at first none, so that
    /// an empty pile accepts jokers only; and no win is announced.
    void dckType(DeckType dType);

    bool acceptCard(const Card& pileCard, const Card& crd) override;

private:
    /// Why the card is refused; empty when it is accepted.
    std::string refusal(const Card& pileCard, const Card& crd) const;

    std::function<std::int16_t()> numPileCards_;
    int cardsToWin_ = 0;
    CardRank lowestRank_{};
};

} // namespace tumble
