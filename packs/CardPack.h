#pragma once

#include "cards/Card.h"
#include "cards/Pile.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace tumble {

class CardTracker;

/// A stack of cards: the deck or a corner pile. Only `dealToTable` and `placeAsPile` draw. A pack is always held by a
/// `std::shared_ptr`, which its pile card shares.
class CardPack : public Pile, public std::enable_shared_from_this<CardPack> {
public:
    /// The table; not owned. Set before cards are added or laid out.
    void tracker(CardTracker* crdTracker) { tracker_ = crdTracker; }
    std::shared_ptr<PileAccepter> accepter() const override { return accepter_; }
    void accepter(std::shared_ptr<PileAccepter> accept) { accepter_ = std::move(accept); }

    /// Adds the deck's cards on top, then sets these attributes of every card in the pack. A deck type outside the set
    /// is reported to the player and adds no card.
    void init(CardSize size, FaceDirection faceDir, BackStyle backStyle, DeckType dckType);
    /// The top card becomes the bottom card.
    void reverse();
    /// Lays every card on the table, the bottom one first, in rows from (x1, y1), in twips. A card whose right edge is
    /// beyond x2 ends its row. The pack is empty afterwards.
    void dealToTable(float x1, float y1, float x2);
    /// An order outside the set is reported to the player and changes nothing.
    void sort(SortOrder sortOrder);
    /// Lays the pack on the table as one pile at (X, Y), in twips.
    void placeAsPile(float X, float Y, PileAlign xAlign = paNear, PileAlign yAlign = paNear);

    std::shared_ptr<Card> seeTopCard() const override { return cards_.empty() ? nullptr : cards_.back(); }
    std::shared_ptr<Card> takeTopCard() override;
    std::int16_t numCards() const override { return static_cast<std::int16_t>(cards_.size()); }
    void addCardToTop(std::shared_ptr<Card> crd) override { cards_.push_back(std::move(crd)); }
    const std::vector<std::shared_ptr<Card>>& cards() const override { return cards_; }

private:
    void appendJoker() { cards_.emplace_back(std::make_shared<Card>())->setAsJoker(); }
    void appendCard(CardRank rank, CardSuit suit) {
        cards_.emplace_back(std::make_shared<Card>())->setRankAndSuit(rank, suit);
    }
    void shuffle();

    std::vector<std::shared_ptr<Card>> cards_; // the last one is the top
    CardTracker* tracker_ = nullptr;
    std::shared_ptr<PileAccepter> accepter_;
    CardSize cardSize_{};
};

} // namespace tumble
