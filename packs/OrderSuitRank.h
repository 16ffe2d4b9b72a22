#pragma once

#include "packs/Sorter.h"

namespace tumble {

/// By suit, and by rank among equal suits; jokers above all other cards.
class OrderSuitRank : public CardOrder {
public:
    std::int16_t fcmp(const Card& card1, const Card& card2) const override;
};

} // namespace tumble
