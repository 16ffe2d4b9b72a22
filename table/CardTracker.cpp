#include "table/CardTracker.h"

#include "cards/Pile.h"

#include <algorithm>
#include <set>
#include <utility>

namespace tumble {

namespace {

constexpr Colour yellow = 0x00FFFF;
constexpr Colour blue = 0xFF0000;

// A pile card without a pack neither gives nor takes a card.
bool standsForPack(const Card& crd) {
    return crd.visible() == vsPile && crd.pack() != nullptr;
}

bool pileTakesCard(const Card& pileCard, const Card& crd) {
    const auto accepter = pileCard.pack()->accepter();
    return accepter == nullptr || accepter->acceptCard(pileCard, crd);
}

} // namespace

void CardTracker::addExistingCard(std::shared_ptr<Card> crd) {
    tableCards_.push_back(std::move(crd));
}

void CardTracker::addCard(CardRank rank, CardSuit suit, float X, float Y, CardSize size, FaceDirection faceDir,
                          BackStyle backStyle) {
    const auto crd = std::make_shared<Card>();
    crd->setRankAndSuit(rank, suit);
    addNewCard(crd, X, Y, size, faceDir, vsCard, backStyle);
}

void CardTracker::addJoker(float X, float Y, CardSize size, FaceDirection faceDir, BackStyle backStyle) {
    const auto crd = std::make_shared<Card>();
    crd->setAsJoker();
    addNewCard(crd, X, Y, size, faceDir, vsCard, backStyle);
}

void CardTracker::addNewCard(const std::shared_ptr<Card>& crd, float X, float Y, CardSize size, FaceDirection faceDir,
                             CardVisibility visibility, BackStyle backStyle, PileAlign xAlign, PileAlign yAlign) {
    crd->setAttributes(picture_, size, faceDir, visibility, backStyle);
    crd->setPosition(X, Y, xAlign, yAlign);
    addExistingCard(crd);
    crd->draw();
}

void CardTracker::addPileCard(float X, float Y, CardSize size, std::shared_ptr<Pile> pack, PileAlign xAlign,
                              PileAlign yAlign) {
    const auto crd = std::make_shared<Card>();
    crd->pack(std::move(pack));
    addNewCard(crd, X, Y, size, fdFaceDown, vsPile, bsFirst, xAlign, yAlign);
}

std::shared_ptr<Card> CardTracker::identifyCard(float X, float Y) {
    const auto topmost = std::find_if(tableCards_.rbegin(), tableCards_.rend(),
                                      [&](const auto& crd) { return pointInCard(X, Y, *crd); });
    curIndex_ = static_cast<std::size_t>(tableCards_.rend() - topmost);
    curCard_ = topmost != tableCards_.rend() ? *topmost : nullptr;
    return curCard_;
}

void CardTracker::bringCurCardToTop() {
    if (curCard_ != nullptr) {
        takeCurCardOut();
        curCard_->draw();
        layCurCardOnTop();
    }
}

void CardTracker::flipCurCard() {
    if (curCard_ != nullptr) {
        curCard_->flip();
        drawFrom(curIndex_);
    }
}

void CardTracker::removeCurCard() {
    if (curCard_ != nullptr) {
        curCard_->undraw();
        takeCurCardOut();
        letGo();
        drawFrom(1);
    }
}

void CardTracker::startCurCardMove(float X, float Y) {
    if (curCard_ == nullptr) {
        return;
    }
    if (curCard_->visible() == vsPile) {
        const auto taken = standsForPack(*curCard_) ? curCard_->pack()->takeTopCard() : nullptr;
        if (taken == nullptr) {
            return;
        }
        taken->setPosition(static_cast<float>(curCard_->x1()), static_cast<float>(curCard_->y1()), paNear, paNear);
        curCard_ = taken;
        layCurCardOnTop();
    }
    offsetX_ = static_cast<float>(static_cast<double>(X) - curCard_->x1());
    offsetY_ = static_cast<float>(static_cast<double>(Y) - curCard_->y1());
    moveInProg_ = true;
}

void CardTracker::moveCurCard(float X, float Y) {
    if (curCard_ == nullptr || !moveInProg_) {
        return;
    }
    // The window arms the drag again after each step; on a pile, that would take the top card.
    if (curCard_->visible() == vsPile) {
        letGo();
        return;
    }
    const Rect limits{0, 0, picture_->Width() - margin, picture_->Height() - margin};
    if (!limits.contains(Point{X, Y})) {
        endCurCardMove();
        return;
    }
    curCard_->undraw();
    takeCurCardOut();
    for (const auto& crd : tableCards_) {
        const bool overlapped = cardsOverlap(*crd, *curCard_);
        crd->drawOutline(overlapped ? yellow : blue, overlapped);
    }
    curCard_->setPosition(X - offsetX_, Y - offsetY_, paNear, paNear);
    curCard_->draw();
    layCurCardOnTop();
    moveInProg_ = false;
}

void CardTracker::endCurCardMove() {
    const auto dropped = curCard_ != nullptr && curCard_->visible() == vsCard ? curCard_ : nullptr;
    const auto target = dropped != nullptr ? findDropPile(*dropped) : nullptr;
    if (target != nullptr && pileTakesCard(*target, *dropped)) {
        // First onto the pile, so that the repainted pile shows the card on top.
        target->pack()->addCardToTop(dropped);
        removeCurCard();
    } else {
        drawFrom(1);
        if (dropped != nullptr) {
            dropped->draw();
        }
    }
    moveInProg_ = false;
}

std::string CardTracker::checkSanity() const {
    if (curIndex_ > tableCards_.size() || (curIndex_ == 0) != (curCard_ == nullptr) ||
        (curIndex_ != 0 && tableCards_[curIndex_ - 1] != curCard_)) {
        return "the current card is not the one at its index";
    }
    std::set<const Card*> placed;
    for (const auto& crd : tableCards_) {
        if (crd->visible() != vsCard && crd->visible() != vsPile) {
            return "what is neither a card nor a pile lies on the table";
        }
        if (!placed.insert(crd.get()).second) {
            return "a card lies on the table twice";
        }
        if (standsForPack(*crd)) {
            for (const auto& inPack : crd->pack()->cards()) {
                if (!placed.insert(inPack.get()).second) {
                    return "a card of a pack lies in a second place";
                }
            }
        }
    }
    return {};
}

// Leaves the card current, but without an index.
void CardTracker::takeCurCardOut() {
    tableCards_.erase(tableCards_.begin() + static_cast<std::ptrdiff_t>(curIndex_ - 1));
    curIndex_ = 0;
}

void CardTracker::layCurCardOnTop() {
    addExistingCard(curCard_);
    curIndex_ = tableCards_.size();
}

void CardTracker::letGo() {
    curIndex_ = 0;
    curCard_ = nullptr;
}

// Draws the cards from a position, counted from 1, to the topmost.
void CardTracker::drawFrom(std::size_t position) const {
    for (std::size_t i = position; i <= tableCards_.size(); ++i) {
        tableCards_[i - 1]->draw();
    }
}

bool CardTracker::cardsOverlap(const Card& crd1, const Card& crd2) {
    return crd2.x2() >= crd1.x1() && crd2.x1() <= crd1.x2() && crd2.y1() <= crd1.y2() && crd2.y2() >= crd1.y1();
}

bool CardTracker::pointInCard(float X, float Y, const Card& crd) {
    const double x = X;
    const double y = Y;
    return (crd.visible() == vsCard || crd.visible() == vsPile) && x >= crd.x1() && x <= crd.x2() && y >= crd.y1() &&
           y <= crd.y2();
}

std::shared_ptr<Card> CardTracker::findDropPile(const Card& crd) const {
    float bestArea = 100000000; // square twips
    std::shared_ptr<Card> best;
    for (const auto& pileCard : tableCards_) {
        if (!standsForPack(*pileCard) || !cardsOverlap(crd, *pileCard)) {
            continue;
        }
        const double width = std::max<double>(crd.x2(), pileCard->x2()) - std::min(crd.x1(), pileCard->x1());
        const double height = std::max<double>(crd.y2(), pileCard->y2()) - std::min(crd.y1(), pileCard->y1());
        const auto area = static_cast<float>(width * height);
        if (area < bestArea) {
            bestArea = area;
            best = pileCard;
        }
    }
    return best;
}

} // namespace tumble
