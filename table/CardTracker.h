#pragma once

#include "cards/Card.h"

#include <memory>
#include <string>
#include <vector>

namespace tumble {

/// The cards on the table in drawing order, and the current card: the one that the mouse holds or points at.
/// Coordinates are twips of the drawing surface.
class CardTracker {
public:
    /// The width in twips of the strips at the right and the bottom of the table that a drag cannot enter.
    static constexpr float margin = 71;

    /// The surface that cards are drawn on; not owned. Set before any card is added.
    void picture(DrawingSurface* pict) { picture_ = pict; }
    DrawingSurface* picture() const { return picture_; }
    /// True while a drag step is armed.
    bool moveInProg() const { return moveInProg_; }

    /// Lays the card on top of all others. Draws nothing. The card must not be on the table already.
    void addExistingCard(std::shared_ptr<Card> crd);
    /// Creates a card with its top left corner at (X, Y), lays it on top and draws it.
    void addCard(CardRank rank, CardSuit suit, float X, float Y, CardSize size, FaceDirection faceDir,
                 BackStyle backStyle);
    void addJoker(float X, float Y, CardSize size, FaceDirection faceDir, BackStyle backStyle);
    /// Creates the pile card of the pack, lays it on top and draws it.
    void addPileCard(float X, float Y, CardSize size, std::shared_ptr<Pile> pack, PileAlign xAlign = paNear,
                     PileAlign yAlign = paNear);

    /// Makes the topmost card at (X, Y) the current card and returns it; empty, and none current, without one.
    std::shared_ptr<Card> identifyCard(float X, float Y);

    // These change the current card; without one they do nothing.
    void bringCurCardToTop();
    void flipCurCard();
    void removeCurCard();

    /// Arms a drag of the current card, held at (X, Y). A pile card gives its top card, which becomes current.
    void startCurCardMove(float X, float Y);
    /// One step of an armed drag: moves the card with the mouse and disarms. Beyond the table's limits the card is
    /// dropped in its place. A pile card never moves: afterwards no card is current.
    void moveCurCard(float X, float Y);
    /// Drops the current card on the pile that it covers most closely, if that accepts it, else in its place.
    void endCurCardMove();

    /// Describes the first violated invariant; empty when all hold. Current card and index agree, each card is in one
    /// place, and only playing cards and pile cards lie on the table.
    std::string checkSanity() const;

private:
    void addNewCard(const std::shared_ptr<Card>& crd, float X, float Y, CardSize size, FaceDirection faceDir,
                    CardVisibility visibility, BackStyle backStyle, PileAlign xAlign = paNear,
                    PileAlign yAlign = paNear);
    void takeCurCardOut();
    void layCurCardOnTop();
    void letGo();
    void drawFrom(std::size_t position) const;
    static bool cardsOverlap(const Card& crd1, const Card& crd2);
    static bool pointInCard(float X, float Y, const Card& crd);
    std::shared_ptr<Card> findDropPile(const Card& crd) const;

    std::vector<std::shared_ptr<Card>> tableCards_; // the last one lies on top
    DrawingSurface* picture_ = nullptr;
    std::size_t curIndex_ = 0; // counted from 1; 0 when there is no current card
    std::shared_ptr<Card> curCard_;
    float offsetX_ = 0; // from the current card's top left corner to the mouse
    float offsetY_ = 0;
    bool moveInProg_ = false;
};

} // namespace tumble
