#pragma once

#include "cards/Card.h"
#include "packs/Sorter.h"

namespace tumble {

/// By rank, and by suit among equal ranks.
class OrderRankSuit : public CardOrder {
    std::pair<int, int> key(const Card& crd) const override { return {crd.rank(), crd.suit()}; }
};

} // namespace tumble
