#pragma once

#include "cards/Card.h"

#include <memory>
#include <string>
#include <vector>

namespace tumble {

/// Every card on the table, in drawing order, and the one that the mouse holds or lies over: the current card. Places
/// are in twips of the drawing surface.
class CardTracker {
public:
    /// Twips at the right and the bottom of the table that a drag does not reach.
    static constexpr float margin = 71;

    /// Where cards are drawn; not owned. Set before any card is added.
    void picture(DrawingSurface* pict) { picture_ = pict; }
    DrawingSurface* picture() const { return picture_; }
    /// True while a step of a drag is armed.
    bool moveInProg() const { return moveInProg_; }

    /// Lays the card on top of all others. Draws nothing; the caller sees to it that the card is not there already.
    void addExistingCard(std::shared_ptr<Card> crd);
    /// Makes a card with its top left corner at the place, lays it on top and draws it.
    void addCard(CardRank rank, CardSuit suit, float X, float Y, CardSize size, FaceDirection faceDir,
                 BackStyle backStyle);
    void addJoker(float X, float Y, CardSize size, FaceDirection faceDir, BackStyle backStyle);
    /// Makes the card that stands for the pack, lays it on top and draws it.
    void addPileCard(float X, float Y, CardSize size, std::shared_ptr<Pile> pack, PileAlign xAlign = paNear,
                     PileAlign yAlign = paNear);

    /// The topmost card that the place lies on, which becomes the current card; empty, and none, where none lies.
    std::shared_ptr<Card> identifyCard(float X, float Y);

    // What is done to the current card; nothing when there is none.
    void bringCurCardToTop();
    void flipCurCard();
    void removeCurCard();

    /// Arms a drag of the current card, held at the place; of a pile, its top card is taken off and becomes current.
    void startCurCardMove(float X, float Y);
    /// One step of an armed drag: moves the card along with the place and disarms; beyond the table's limits it drops
    /// the card where it lies. A pile card never moves: a step lets go of it.
    void moveCurCard(float X, float Y);
    /// Drops the current card: on the pile that it covers most closely, if that takes it, else where it lies.
    void endCurCardMove();

    /// The first fault found in what must always hold, in words; empty when there is none: current card and index
    /// agree, each card lies in one place, and only cards and pile cards lie on the table.
    std::string checkSanity() const;

private:
    void addNewCard(const std::shared_ptr<Card>& crd, float X, float Y, CardSize size, FaceDirection faceDir,
                    BackStyle backStyle);
    void takeCurCardOut();
    void layCurCardOnTop();
    void letGo();
    void drawFrom(std::size_t position) const;
    static bool cardsOverlap(const Card& crd1, const Card& crd2);
    static bool pointInCard(float X, float Y, const Card& crd);
    std::shared_ptr<Card> findDropPile(const Card& crd) const;
    static bool pileTakesCard(const Card& pileCard, const Card& crd);

    std::vector<std::shared_ptr<Card>> tableCards_; // the last one lies on top
    DrawingSurface* picture_ = nullptr;
    std::size_t curIndex_ = 0; // counted from 1; 0 when there is no current card
    std::shared_ptr<Card> curCard_;
    float offsetX_ = 0; // where inside the current card the mouse holds it
    float offsetY_ = 0;
    bool moveInProg_ = false;
};

} // namespace tumble
