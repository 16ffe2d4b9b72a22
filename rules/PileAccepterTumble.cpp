#include "rules/PileAccepterTumble.h"

#include "cards/Card.h"
#include "platform/forms/MessageBox.h"

#include <utility>

namespace tumble {

PileAccepterTumble::PileAccepterTumble(std::function<std::int16_t()> numPileCards)
    : numPileCards_(std::move(numPileCards)) {}

void PileAccepterTumble::dckType(DeckType dType) {
    const auto deck = CardConstants::deckMakeUp(dType).value_or(DeckMakeUp());
    cardsToWin_ = deck.cards();
    if (cardsToWin_ == 0) {
        MsgBox("Invalid Deck Type!");
        return;
    }
    lowestRank_ = deck.lowestRank;
}

bool PileAccepterTumble::acceptCard(const Card& pileCard, const Card& crd) {
    if (const std::string why = refusal(pileCard, crd); !why.empty()) {
        MsgBox(why, "Invalid Move!");
        return false;
    }
    // The accepted card is not on its pile yet.
    if (numPileCards_() == cardsToWin_ - 1) {
        MsgBox("CONGRATULATIONS!", "YOU WIN");
    }
    return true;
}

std::string PileAccepterTumble::refusal(const Card& pileCard, const Card& crd) const {
    const auto top = pileCard.pack()->seeTopCard();
    if (top == nullptr) {
        return crd.joker() || crd.rank() == lowestRank_
                   ? ""
                   : "You must play the lowest ranking card, a " + CardConstants::rankName(lowestRank_);
    }
    if (crd.joker() || top->joker()) {
        return {};
    }
    const auto step = static_cast<std::int16_t>(static_cast<std::int64_t>(crd.rank()) - top->rank());
    if (step != 0 && step != 1) {
        std::string message = "You must play either a " + top->getStr();
        if (top->rank() != rkAce) { // no rank is higher
            const auto next = static_cast<CardRank>(static_cast<std::int64_t>(top->rank()) + 1);
            message += " or a " + CardConstants::rankName(next) + " of " + top->getSuitStr() + "s";
        }
        return message + " or a Joker";
    }
    if (top->suit() != crd.suit()) {
        return "You must follow suit with a " + top->getSuitStr();
    }
    return {};
}

} // namespace tumble
