#pragma once

#include "cards/CardConstants.h"
#include "platform/paint/DrawingSurface.h"

#include <cstdint>
#include <memory>
#include <string>

namespace tumble {

class Pile;

/// A playing card, a joker, or the pile card that stands on the table for a whole pack. It knows where it lies and
/// paints itself there, at once, whatever lies around it. The rectangle it covers, in twips, includes all its edges.
class Card {
public:
    // The edges, rounded to the nearest whole twip, halves to even; a new card has no area.
    std::int32_t x1() const;
    std::int32_t y1() const;
    std::int32_t x2() const;
    std::int32_t y2() const;

    CardVisibility visible() const { return visible_; }
    bool joker() const { return joker_; }
    /// The size last given, even one outside the set.
    CardSize size() const { return size_; }
    BackStyle backStyle() const { return backStyle_; }
    CardRank rank() const { return rank_; }
    CardSuit suit() const { return suit_; }

    void visibility(CardVisibility visible) { visible_ = visible; }
    /// What a pile card stands for; empty on every other card.
    const std::shared_ptr<Pile>& pack() const { return pack_; }
    void pack(std::shared_ptr<Pile> pck);

    /// `picture` is the surface to paint on; it is not owned and outlives the card's paintings. A size outside the set
    /// is reported to the player and leaves width and height as they were.
    void setAttributes(DrawingSurface* picture, CardSize size, FaceDirection faceDir, CardVisibility visibility,
                       BackStyle backStyle);
    /// Needs the size that `setAttributes` gives. Draws nothing.
    void setPosition(float X, float Y, PileAlign xAlign, PileAlign yAlign);

    // A card without a surface paints nothing.
    /// Paints the card as it should look; a pile card paints its pack, whose top card moves to the pile's place.
    void draw() const;
    /// Paints a block of the colour in the card's place; partial: with a black border and a red circle in the middle.
    void drawOutline(Colour col, bool partial) const;
    /// Paints the card's place in the surface's background colour.
    void undraw() const;

    std::string getRankStr() const;
    std::string getSuitStr() const;
    /// The name shown to the player, whichever way up the card lies: "Five of Hearts", "Joker", "Pile (empty)".
    std::string getStr() const;

    void setAsJoker();
    void setRankAndSuit(CardRank rank, CardSuit suit);
    /// Turns the card over; draws nothing.
    void flip();

private:
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
