#pragma once

#include "cards/CardConstants.h"
#include "platform/paint/DrawingSurface.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace tumble {

class Pile;

/// A playing card, a joker, or the pile card that represents a whole pack on the table. A card knows its place and
/// paints itself there at once, whatever lies around it. Its rectangle, in twips, includes all four edges.
class Card {
public:
    // The edges, each rounded once from the exact sum to the nearest whole twip, halves to even. A new card has no
    // area.
    std::int32_t x1() const { return wholeTwips(xPos_); }
    std::int32_t y1() const { return wholeTwips(yPos_); }
    std::int32_t x2() const { return wholeTwips(static_cast<double>(xPos_) + cardWidth_ - 1); }
    std::int32_t y2() const { return wholeTwips(static_cast<double>(yPos_) + cardHeight_ - 1); }

    CardVisibility visible() const { return visible_; }
    bool joker() const { return joker_; }
    /// The size last set, even one outside the set of sizes.
    CardSize size() const { return size_; }
    BackStyle backStyle() const { return backStyle_; }
    CardRank rank() const { return rank_; }
    CardSuit suit() const { return suit_; }

    void visibility(CardVisibility visible) { visible_ = visible; }
    /// The pack that a pile card represents; empty on every other card.
    const std::shared_ptr<Pile>& pack() const { return pack_; }
    void pack(std::shared_ptr<Pile> pck) { pack_ = std::move(pck); }

    /// `picture` is the surface to paint on; it is not owned and outlives the card's paintings. A size outside the set
    /// is reported to the player and changes neither width nor height.
    void setAttributes(DrawingSurface* picture, CardSize size, FaceDirection faceDir, CardVisibility visibility,
                       BackStyle backStyle);
    /// Uses the size that `setAttributes` has set. Draws nothing.
    void setPosition(float X, float Y, PileAlign xAlign, PileAlign yAlign);

    // A card without a surface paints nothing.
    /// Paints the card. A pile card paints its pack, whose top card moves to the pile's place.
    void draw() const;
    /// Fills the card's rectangle with the colour. `partial` adds a black border and a red circle in the middle.
    void drawOutline(Colour col, bool partial) const;
    /// Fills the card's rectangle with the surface's background colour.
    void undraw() const;

    std::string getRankStr() const { return CardConstants::rankName(rank_); }
    std::string getSuitStr() const { return CardConstants::suitName(suit_); }
    /// The name shown to the player, the same face up and face down: "Five of Hearts", "Joker", "Pile (empty)".
    std::string getStr() const;

    void setAsJoker();
    void setRankAndSuit(CardRank rank, CardSuit suit);
    /// Turns the card over. Draws nothing.
    void flip();

private:
    static std::int32_t wholeTwips(double edge);
    Rect rectangle() const;
    bool hasPlace() const { return surface_ != nullptr && (visible_ == vsCard || visible_ == vsPile); }
    void drawCard() const;
    void drawPile() const;
    void drawEmptyPile() const;
    void drawPileEdge(int cards) const;

    DrawingSurface* surface_ = nullptr;
    float xPos_ = 0;
    float yPos_ = 0;
    std::int16_t cardWidth_ = 0;
    std::int16_t cardHeight_ = 0;
    CardSize size_{};
    FaceDirection faceDir_{};
    CardVisibility visible_{};
    CardRank rank_{};
    CardSuit suit_{};
    bool joker_ = false;
    const Picture* faceImage_ = nullptr;
    const Picture* backImage_ = nullptr;
    BackStyle backStyle_{};
    std::shared_ptr<Pile> pack_;
};

} // namespace tumble
