#include "packs/frmTumbleOptions.h"

#include <utility>

namespace tumble {

namespace {

/// Draws a preview in the middle of its box.
void preview(Card& crd, PictureBox& box, CardSize size, FaceDirection faceDir, BackStyle backStyle) {
    crd.setAttributes(&box, size, faceDir, vsCard, backStyle);
    const double width = static_cast<double>(crd.x2()) - crd.x1() + 1;
    const double height = static_cast<double>(crd.y2()) - crd.y1() + 1;
    crd.setPosition(static_cast<float>((box.Width() - width) / 2), static_cast<float>((box.Height() - height) / 2),
                    paNear, paNear);
    crd.draw();
}

} // namespace

frmTumbleOptions::frmTumbleOptions(StartGame startGame)
    : Form("Tumble Options", 8595, 5220), startGame_(std::move(startGame)) {
    lblDeckDescription.describes = &fraDeckType;
}

void frmTumbleOptions::Form_Load() {
    sizePreviewCard_.setRankAndSuit(rkAce, suSpade);
    preview(sizePreviewCard_, pctCardSize, csNormal, fdFaceUp, bsFirst);

    sldBackDesign.Min(bsFirst);
    sldBackDesign.Max(bsLast);
    sldBackDesign.Value(bsFirst);
    preview(backPreviewCard_, pctBackDesign, csNormal, fdFaceDown, bsFirst);

    curFaceDir_ = fdFaceUp;
    lblDeckDescription.Caption(optDeckStandard.Tag());
    curDeckType_ = dtStandard;
    curSortOrder_ = soNatural;
    curInPile_ = lsSpread;
}

void frmTumbleOptions::cmdPlay_Click() {
    Hide();
    startGame_(sizePreviewCard_.size(), backPreviewCard_.backStyle(), curFaceDir_, curDeckType_, curSortOrder_,
               curInPile_);
}

void frmTumbleOptions::cmdExit_Click() {
    Unload();
    desktop().End();
}

void frmTumbleOptions::sldBackDesign_Change() {
    const auto backStyle = static_cast<BackStyle>(sldBackDesign.Value());
    backPreviewCard_.setAttributes(&pctBackDesign, csNormal, fdFaceDown, vsCard, backStyle);
    backPreviewCard_.draw();
}

void frmTumbleOptions::showSize(CardSize size) {
    pctCardSize.Cls();
    preview(sizePreviewCard_, pctCardSize, size, fdFaceUp, bsFirst);
}

void frmTumbleOptions::chooseDeck(const OptionButton& button, DeckType dckType) {
    lblDeckDescription.Caption(button.Tag());
    curDeckType_ = dckType;
}

} // namespace tumble
