#pragma once

#include "platform/base/NonMovable.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace tumble {

class Card;

/// Decides whether a card dropped on a pile may stay there.
class PileAccepter : private NonMovable {
public:
    virtual ~PileAccepter() = default;

    /// `pileCard` represents the pile on the table; `crd` is the card dropped on it. When the call returns, a refusal
    /// has been explained to the player.
    virtual bool acceptCard(const Card& pileCard, const Card& crd) = 0;
};

/// A stack of cards, as its pile card and a drag need it.
class Pile : private NonMovable {
public:
    virtual ~Pile() = default;

    /// The top card, which stays in the pile; empty when there is none.
    virtual std::shared_ptr<Card> seeTopCard() const = 0;
    /// Removes the top card and returns it; empty when there is none.
    virtual std::shared_ptr<Card> takeTopCard() = 0;
    virtual void addCardToTop(std::shared_ptr<Card> crd) = 0;
    virtual std::int16_t numCards() const = 0;
    /// Empty when the pile accepts any card.
    virtual std::shared_ptr<PileAccepter> accepter() const = 0;
    /// All cards, the bottom one first.
    virtual const std::vector<std::shared_ptr<Card>>& cards() const = 0;
};

} // namespace tumble
