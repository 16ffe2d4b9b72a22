#pragma once

#include "cards/Card.h"
#include "packs/Sorter.h"

namespace tumble {

/// By suit, and by rank among equal suits.
class OrderSuitRank : public CardOrder {
    std::pair<int, int> key(const Card& crd) const override { return {crd.suit(), crd.rank()}; }
};

} // namespace tumble
