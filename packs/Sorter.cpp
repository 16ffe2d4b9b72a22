#include "packs/Sorter.h"

#include "cards/Card.h"

#include <algorithm>

namespace tumble {

std::int16_t CardOrder::fcmp(const Card& card1, const Card& card2) const {
    // A joker's rank and suit mean nothing.
    const auto place = [this](const Card& crd) {
        return std::pair(crd.joker(), crd.joker() ? std::pair(0, 0) : key(crd));
    };
    return place(card1) < place(card2) ? -1 : place(card2) < place(card1) ? 1 : 0;
}

// An insertion sort: each card moves down past every card that it belongs below.
void Sorter::sortCards(std::vector<std::shared_ptr<Card>>& cards, const CardOrder& order) {
    for (auto card = cards.begin(); card != cards.end(); ++card) {
        auto place = card;
        while (place != cards.begin() && order.fcmp(**card, **(place - 1)) == -1) {
            --place;
        }
        std::rotate(place, card, card + 1);
    }
}

} // namespace tumble
