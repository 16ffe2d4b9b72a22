#pragma once

#include "cards/Card.h"
#include "cards/Pile.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace tumble {

class CardTracker;

/// An ordered stack of cards, the last of which is the top: the deck, or a corner pile. It draws nothing itself except
/// while it deals. Always held by a `std::shared_ptr`, which its pile card shares.
class CardPack : public Pile, public std::enable_shared_from_this<CardPack> {
public:
    /// The table; not owned. Set before the pack is filled or laid out.
    void tracker(CardTracker* crdTracker) { tracker_ = crdTracker; }
    std::shared_ptr<PileAccepter> accepter() const override { return accepter_; }
    void accepter(std::shared_ptr<PileAccepter> accept);

    /// Adds the deck's cards on top and gives every card of the pack these attributes. A deck type outside the set is
    /// reported to the player and adds no card.
    void init(CardSize size, FaceDirection faceDir, BackStyle backStyle, DeckType dckType);
    /// The top card becomes the bottom card.
    void reverse();
    /// Lays every card on the table, the bottom one first, in rows from (x1, y1); the card whose right edge passes x2
    /// ends its row. The pack is empty afterwards. Twips.
    void dealToTable(float x1, float y1, float x2);
    /// An order outside the set is reported to the player and changes nothing.
    void sort(SortOrder sortOrder);
    /// Lays the pack on the table as one pile. Twips.
    void placeAsPile(float X, float Y, PileAlign xAlign = paNear, PileAlign yAlign = paNear);

    std::shared_ptr<Card> seeTopCard() const override;
    std::shared_ptr<Card> takeTopCard() override;
    std::int16_t numCards() const override { return static_cast<std::int16_t>(cards_.size()); }
    void addCardToTop(std::shared_ptr<Card> crd) override;
    const std::vector<std::shared_ptr<Card>>& cards() const override { return cards_; }

private:
    void appendJoker();
    void appendCard(CardRank rank, CardSuit suit);
    void shuffle();

    std::vector<std::shared_ptr<Card>> cards_;
    CardTracker* tracker_ = nullptr;
    std::shared_ptr<PileAccepter> accepter_;
    CardSize cardSize_{};
};

} // namespace tumble
