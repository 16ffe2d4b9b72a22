#pragma once

#include "packs/Sorter.h"

namespace tumble {

/// By rank, and by suit among equal ranks; jokers above all other cards.
class OrderRankSuit : public CardOrder {
public:
    std::int16_t fcmp(const Card& card1, const Card& card2) const override;
};

} // namespace tumble
