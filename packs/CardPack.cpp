#include "packs/CardPack.h"

#include "packs/OrderRankSuit.h"
#include "packs/OrderSuitRank.h"
#include "packs/Sorter.h"
#include "platform/base/Random.h"
#include "platform/forms/Desktop.h"
#include "platform/forms/MessageBox.h"
#include "table/CardTracker.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace tumble {

namespace {

constexpr float cardStep = 150; // twips from card to card in a row
constexpr float rowStep = 1000; // twips from row to row

} // namespace

void CardPack::init(CardSize size, FaceDirection faceDir, BackStyle backStyle, DeckType dckType) {
    const auto deck = CardConstants::deckMakeUp(dckType);
    if (!deck) {
        MsgBox("Invalid Deck Type!");
    }
    const auto [copies, lowestRank, jokers] = deck.value_or(DeckMakeUp());
    for (int joker = 0; joker < jokers; ++joker) {
        appendJoker();
    }
    for (int copy = 0; copy < copies; ++copy) {
        for (std::int32_t rank = lowestRank; rank <= rkAce; ++rank) {
            for (const CardSuit suit : {suDiamond, suClub, suHeart, suSpade}) {
                appendCard(static_cast<CardRank>(rank), suit);
            }
        }
    }
    for (const auto& crd : cards_) {
        crd->setAttributes(tracker_->picture(), size, faceDir, vsCard, backStyle);
    }
    cardSize_ = size;
}

void CardPack::reverse() {
    std::reverse(cards_.begin(), cards_.end());
}

void CardPack::dealToTable(float x1, float y1, float x2) {
    float x = x1;
    float y = y1;
    for (const auto& crd : cards_) {
        crd->setPosition(x, y, paNear, paNear);
        crd->draw();
        tracker_->addExistingCard(crd);
        x += cardStep;
        if (x2 < static_cast<float>(crd->x2())) {
            y += rowStep;
            x = x1;
        }
    }
    cards_.clear();
}

void CardPack::sort(SortOrder sortOrder) {
    switch (sortOrder) {
    case soNatural:
        break;
    case soShuffled:
        shuffle();
        break;
    case soRankSuitAsc:
    case soRankSuitDesc:
        Sorter::sortCards(cards_, OrderRankSuit());
        break;
    case soSuitRankAsc:
    case soSuitRankDesc:
        Sorter::sortCards(cards_, OrderSuitRank());
        break;
    default:
        MsgBox("Invalid pack sorting order!");
    }
    if (sortOrder == soRankSuitDesc || sortOrder == soSuitRankDesc) {
        reverse();
    }
}

// Swaps ten pairs for each card. The range up to the largest 32-bit integer is cut into equal shares, one for each
// position. A pair with a value past the last share is drawn again.
void CardPack::shuffle() {
    const auto n = static_cast<std::int32_t>(cards_.size());
    if (n < 1) {
        return;
    }
    Random& random = desktop().random();
    random.Randomize();
    const std::int32_t share = 2147483647 / n;
    const auto position = [&] {
        return static_cast<std::int32_t>(std::nearbyint(random.Rnd() * 2147483647.0)) / share;
    };
    for (int swaps = 0; swaps < 10 * n; ++swaps) {
        std::int32_t a = 0;
        std::int32_t b = 0;
        do {
            a = position();
            b = position();
        } while (a >= n || b >= n);
        std::swap(cards_[static_cast<std::size_t>(a)], cards_[static_cast<std::size_t>(b)]);
    }
}

void CardPack::placeAsPile(float X, float Y, PileAlign xAlign, PileAlign yAlign) {
    tracker_->addPileCard(X, Y, cardSize_, shared_from_this(), xAlign, yAlign);
}

std::shared_ptr<Card> CardPack::takeTopCard() {
    auto top = seeTopCard();
    if (top != nullptr) {
        cards_.pop_back();
    }
    return top;
}

} // namespace tumble
