#pragma once

#include "platform/base/NonMovable.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace tumble {

class Card;

/// An order of cards.
class CardOrder : private NonMovable {
public:
    virtual ~CardOrder() = default;

    /// -1 when `card1` belongs below `card2`, 1 when above, 0 when the order does not tell them apart.
    virtual std::int16_t fcmp(const Card& card1, const Card& card2) const = 0;
};

namespace Sorter {

/// Sorts the cards in place, the lowest first; cards that the order does not tell apart stay as they are. A list that
/// is in order already costs one comparison a card.
void sortCards(std::vector<std::shared_ptr<Card>>& cards, const CardOrder& order);

} // namespace Sorter

} // namespace tumble
