#pragma once

#include "cards/CardConstants.h"
#include "cards/Pile.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tumble {

/// The rules of the corner piles: an empty pile takes the lowest rank of the deck, a pile with cards its top card's
/// suit in the same rank or the next higher one, and jokers go anywhere and take anything. Tells the player why a card
/// is refused, and that the game is won; moves nothing.
class PileAccepterTumble : public PileAccepter {
public:
    /// `numPileCards` counts the cards on all corner piles.
    explicit PileAccepterTumble(std::function<std::int16_t()> numPileCards);

    /// A deck type without a lowest rank is reported to the player; piles then start as before (at first with jokers
    /// only), and no win is announced.
    void dckType(DeckType dType);

    bool acceptCard(const Card& pileCard, const Card& crd) override;

private:
    /// Why the card is refused; empty when it is not.
    std::string refusal(const Card& pileCard, const Card& crd) const;

    std::function<std::int16_t()> numPileCards_;
    int cardsToWin_ = 0;
    CardRank lowestRank_{};
};

} // namespace tumble
