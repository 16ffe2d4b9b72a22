#include "game/frmTumble.h"

#include "game/frmAbout.h"
#include "platform/forms/MessageBox.h"
#include "platform/forms/Mouse.h"

#include <cassert>

namespace tumble {

frmTumble::frmTumble(const std::unique_ptr<CardTracker>& tableTracker)
    : Form("Tumble", clientWidth, clientHeight), tableTracker_(tableTracker) {
    picTable.dragBounds = {0, 0, picTable.Width() - CardTracker::margin, picTable.Height() - CardTracker::margin};
    picTable.MouseDown = [this](auto... event) { picTable_MouseDown(event...); };
    picTable.MouseMove = [this](auto... event) { picTable_MouseMove(event...); };
    picTable.MouseUp = [this](auto... event) { picTable_MouseUp(event...); };
    lblCurrentCardLabel.names = &lblCurrentCard;
    lblCurrentCard.describes = &picTable;
}

void frmTumble::picTable_MouseDown(std::int16_t Button, std::int16_t /*Shift*/, float X, float Y) {
    nameCardAt(X, Y);
    if (Button == leftButton) {
        tableTracker_->startCurCardMove(X, Y);
    } else if (Button == rightButton) {
        tableTracker_->flipCurCard();
    }
    assert(tableTracker_->checkSanity().empty());
}

void frmTumble::picTable_MouseMove(std::int16_t /*Button*/, std::int16_t /*Shift*/, float X, float Y) {
    if (tableTracker_->moveInProg()) {
        tableTracker_->moveCurCard(X, Y);
        tableTracker_->startCurCardMove(X, Y);
    } else {
        nameCardAt(X, Y);
    }
    assert(tableTracker_->checkSanity().empty());
}

void frmTumble::picTable_MouseUp(std::int16_t /*Button*/, std::int16_t /*Shift*/, float X, float Y) {
    if (tableTracker_->moveInProg()) {
        tableTracker_->moveCurCard(X, Y);
        tableTracker_->endCurCardMove();
    }
    assert(tableTracker_->checkSanity().empty());
}

void frmTumble::nameCardAt(float X, float Y) {
    const auto crd = tableTracker_->identifyCard(X, Y);
    lblCurrentCard.Caption(crd == nullptr ? "None" : crd->getStr());
}

void frmTumble::cmdAbout_Click() {
    frmAbout about;
    about.Show(Modality::Modal);
}

void frmTumble::cmdHelp_Click() {
    MsgBox("Drag each of the cards to one of the corner piles. Each pile must\r\n"
           "contain a different suit, and the cards must be built up from\r\n"
           "lowest card (Two) to highest card (Ace).  Right-click on a card to\r\n"
           "flip it (you cannot flip piles).",
           "Tumble Instructions");
}

void frmTumble::cmdExit_Click() {
    Unload();
    desktop().End();
}

} // namespace tumble
