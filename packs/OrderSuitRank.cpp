#include "packs/OrderSuitRank.h"

#include "cards/Card.h"

#include <tuple>

namespace tumble {

std::int16_t OrderSuitRank::fcmp(const Card& card1, const Card& card2) const {
    // A joker's rank and suit mean nothing.
    const auto key = [](const Card& crd) {
        return crd.joker() ? std::tuple(true, 0, 0) : std::tuple(false, int{crd.suit()}, int{crd.rank()});
    };
    return key(card1) < key(card2) ? -1 : key(card2) < key(card1) ? 1 : 0;
}

} // namespace tumble
