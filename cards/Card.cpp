#include "cards/Card.h"

#include "cards/CardImages.h"
#include "cards/Pile.h"
#include "platform/forms/MessageBox.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <tuple>
#include <utility>

namespace tumble {

namespace {

constexpr Colour black = 0;
constexpr Colour green = 0x00FF00;
constexpr Colour red = 0x0000FF;
constexpr Colour darkGrey = 0x666666;
constexpr Colour darkerGrey = 0x333333;

constexpr float edgeStep = 5;     // twips of a pile's edge that each of its cards adds
constexpr float markRadius = 100; // twips

// Width and height in twips, in the order of `CardSize`.
constexpr std::array<std::pair<std::int16_t, std::int16_t>, 3> extents{{{729, 1134}, {900, 1400}, {1233, 1918}}};

float nearEdge(float place, std::int16_t extent, PileAlign align) {
    switch (align) {
    case paNear:
        return place;
    case paCenter:
        return place - extent / 2.0F;
    default:
        return place - extent + 1;
    }
}

} // namespace

std::int32_t Card::wholeTwips(double edge) {
    constexpr double least = std::numeric_limits<std::int32_t>::min();
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    return std::isnan(edge) ? 0 : static_cast<std::int32_t>(std::clamp(std::nearbyint(edge), least, most));
}

void Card::setAttributes(DrawingSurface* picture, CardSize size, FaceDirection faceDir, CardVisibility visibility,
                         BackStyle backStyle) {
    surface_ = picture;
    size_ = size;
    faceDir_ = faceDir;
    visible_ = visibility;
    backStyle_ = backStyle;
    if (size >= csSmall && size <= csNormal) {
        std::tie(cardWidth_, cardHeight_) = extents.at(static_cast<std::size_t>(size));
    } else {
        MsgBox("Invalid card size!");
    }
    backImage_ = &CardImages::find("CardBack" + std::to_string(backStyle));
}

void Card::setPosition(float X, float Y, PileAlign xAlign, PileAlign yAlign) {
    xPos_ = nearEdge(X, cardWidth_, xAlign);
    yPos_ = nearEdge(Y, cardHeight_, yAlign);
}

Rect Card::rectangle() const {
    return {xPos_, yPos_, xPos_ + cardWidth_ - 1, yPos_ + cardHeight_ - 1};
}

void Card::draw() const {
    if (surface_ == nullptr) {
        return;
    }
    if (visible_ == vsCard) {
        drawCard();
    } else if (pack_ != nullptr) {
        drawPile();
    }
}

void Card::drawCard() const {
    const Rect place = rectangle();
    const Picture* image = faceDir_ != fdFaceDown ? faceImage_ : backImage_;
    ItemPainter painter = surface_->Paint(place);
    painter.PaintPicture(image != nullptr ? *image : CardImages::find({}), xPos_, yPos_, cardWidth_, cardHeight_);
    painter.Line(place, std::nullopt, BoxFill::Outline);
}

void Card::drawPile() const {
    const auto top = pack_->seeTopCard();
    if (top == nullptr) {
        drawEmptyPile();
        return;
    }
    top->setPosition(xPos_, yPos_, paNear, paNear);
    top->draw();
    drawPileEdge(pack_->numCards());
}

void Card::drawEmptyPile() const {
    const Rect place = rectangle();
    ItemPainter painter = surface_->Paint(place);
    painter.Line(place, green, BoxFill::Filled);
    painter.Line({place.left, place.top}, {place.right, place.bottom}, black);
    painter.Line({place.right, place.top}, {place.left, place.bottom}, black);
}

// Each step draws the right and bottom edges of one card's outline. Background colour clears the space above the right
// edge and to the left of the bottom edge, and at last the corners of the top card's border outside the steps.
void Card::drawPileEdge(int cards) const {
    const auto [L, T, R, B] = rectangle();
    ItemPainter painter = surface_->Paint(rectangle());
    for (int i = cards; i >= 1; --i) {
        const float inset = edgeStep * static_cast<float>(i);
        const float offset = edgeStep * static_cast<float>(cards - i);
        painter.Line({R - inset, T}, {R - inset, T + offset}, surface_->BackColor());
        painter.Line({R - inset, B - inset}, darkGrey);
        painter.Line({L + offset, B - inset}, darkerGrey);
        painter.Line({L, B - inset}, surface_->BackColor());
    }
    const float band = edgeStep * static_cast<float>(cards);
    painter.Line({R, T}, {R, T + band}, surface_->BackColor());
    painter.Line({L, B - band}, {L, B}, surface_->BackColor());
    painter.Line({L + band, B}, surface_->BackColor());
}

void Card::drawOutline(Colour col, bool partial) const {
    if (!hasPlace()) {
        return;
    }
    const Rect place = rectangle();
    ItemPainter painter = surface_->Paint(place);
    painter.Line(place, col, BoxFill::Filled);
    if (partial) {
        painter.Line(place, black, BoxFill::Outline);
        painter.Circle({xPos_ + cardWidth_ / 2.0F, yPos_ + cardHeight_ / 2.0F}, markRadius, red);
    }
}

void Card::undraw() const {
    if (hasPlace()) {
        surface_->Paint(rectangle()).Line(rectangle(), surface_->BackColor(), BoxFill::Filled);
    }
}

std::string Card::getStr() const {
    if (visible_ == vsPile) {
        const auto top = pack_ != nullptr ? pack_->seeTopCard() : nullptr;
        return top == nullptr ? "Pile (empty)" : "Pile (" + top->getStr() + ")";
    }
    return joker_ ? "Joker" : getRankStr() + " of " + getSuitStr() + "s";
}

void Card::setAsJoker() {
    joker_ = true;
    faceImage_ = &CardImages::find("Joker");
}

void Card::setRankAndSuit(CardRank rank, CardSuit suit) {
    rank_ = rank;
    suit_ = suit;
    joker_ = false;
    faceImage_ = &CardImages::find(getRankStr() + getSuitStr() + "s");
}

void Card::flip() {
    faceDir_ = faceDir_ == fdFaceUp ? fdFaceDown : fdFaceUp;
}

} // namespace tumble
