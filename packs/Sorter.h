#pragma once

#include "platform/base/NonMovable.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace tumble {

class Card;

/// An order of cards, jokers above all others.
class CardOrder : private NonMovable {
public:
    virtual ~CardOrder() = default;

    /// -1 when `card1` belongs below `card2`, 1 when above, 0 when they are equal in this order.
    std::int16_t fcmp(const Card& card1, const Card& card2) const;

private:
    /// Equal cards have equal keys, a lower card has the lesser key. Not called for jokers.
    virtual std::pair<int, int> key(const Card& crd) const = 0;
};

namespace Sorter {

/// Sorts the cards in place, the lowest first; the sort is stable. A sorted list costs one comparison for each card.
void sortCards(std::vector<std::shared_ptr<Card>>& cards, const CardOrder& order);

} // namespace Sorter

} // namespace tumble
