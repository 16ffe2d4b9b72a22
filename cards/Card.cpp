#include "cards/Card.h"

#include "cards/CardImages.h"
#include "cards/Pile.h"
#include "platform/forms/MessageBox.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tumble {

namespace {

constexpr Colour black = 0;
constexpr Colour green = 0x00FF00;
constexpr Colour red = 0x0000FF;
constexpr Colour darkGrey = 0x666666;
constexpr Colour darkerGrey = 0x333333;

constexpr float edgeStep = 5;     // twips by which each card of a pile sets off its edge
constexpr float markRadius = 100; // twips

std::int32_t wholeTwips(double edge) {
    constexpr double least = std::numeric_limits<std::int32_t>::min();
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    return std::isnan(edge) ? 0 : static_cast<std::int32_t>(std::clamp(std::nearbyint(edge), least, most));
}

float nearEdge(float place, std::int16_t extent, PileAlign align) {
    switch (align) {
    case paNear:
        return place;
    case paCenter:
        return place - static_cast<float>(extent) / 2;
    default:
        return place - static_cast<float>(extent) + 1;
    }
}

} // namespace

// In double precision, where the sum is exact, so that it is rounded once.
std::int32_t Card::x1() const {
    return wholeTwips(xPos_);
}
std::int32_t Card::y1() const {
    return wholeTwips(yPos_);
}
std::int32_t Card::x2() const {
    return wholeTwips(static_cast<double>(xPos_) + cardWidth_ - 1);
}
std::int32_t Card::y2() const {
    return wholeTwips(static_cast<double>(yPos_) + cardHeight_ - 1);
}

void Card::pack(std::shared_ptr<Pile> pck) {
    pack_ = std::move(pck);
}

void Card::setAttributes(DrawingSurface* picture, CardSize size, FaceDirection faceDir, CardVisibility visibility,
                         BackStyle backStyle) {
    surface_ = picture;
    size_ = size;
    faceDir_ = faceDir;
    visible_ = visibility;
    backStyle_ = backStyle;
    const auto setSize = [this](std::int16_t width, std::int16_t height) {
        cardWidth_ = width;
        cardHeight_ = height;
    };
    switch (size) {
    case csSmall:
        setSize(729, 1134);
        break;
    case csMedium:
        setSize(900, 1400);
        break;
    case csNormal:
        setSize(1233, 1918);
        break;
    default:
        MsgBox("Invalid card size!");
    }
    backImage_ = &CardImages::find("CardBack" + std::to_string(backStyle));
}

void Card::setPosition(float X, float Y, PileAlign xAlign, PileAlign yAlign) {
    xPos_ = nearEdge(X, cardWidth_, xAlign);
    yPos_ = nearEdge(Y, cardHeight_, yAlign);
}

Rect Card::rectangle() const {
    return {.left = xPos_,
            .top = yPos_,
            .right = static_cast<float>(cardWidth_) + xPos_ - 1,
            .bottom = static_cast<float>(cardHeight_) + yPos_ - 1};
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

// Each step draws the right and bottom edges of a card's outline and, in the background colour, cuts away what sticks
// out above and to the left of it; at last the corners of the top card's border go that lie outside the steps.
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
        const Point middle{place.left + static_cast<float>(cardWidth_) / 2,
                           place.top + static_cast<float>(cardHeight_) / 2};
        painter.Line(place, black, BoxFill::Outline);
        painter.Circle(middle, markRadius, red);
    }
}

void Card::undraw() const {
    if (hasPlace()) {
        surface_->Paint(rectangle()).Line(rectangle(), surface_->BackColor(), BoxFill::Filled);
    }
}

std::string Card::getRankStr() const {
    return CardConstants::rankName(rank_);
}

std::string Card::getSuitStr() const {
    return CardConstants::suitName(suit_);
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
