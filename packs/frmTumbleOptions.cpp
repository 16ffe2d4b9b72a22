#include "packs/frmTumbleOptions.h"

#include <utility>

namespace tumble {

namespace {

void centre(Card& crd, const PictureBox& box) {
    const double width = static_cast<double>(crd.x2()) - crd.x1() + 1;
    const double height = static_cast<double>(crd.y2()) - crd.y1() + 1;
    crd.setPosition(static_cast<float>((box.Width() - width) / 2), static_cast<float>((box.Height() - height) / 2),
                    paNear, paNear);
}

} // namespace

frmTumbleOptions::frmTumbleOptions(StartGame startGame)
    : Form("Tumble Options", 8595, 5220), startGame_(std::move(startGame)) {
    lblDeckDescription.describes = &fraDeckType;
}

void frmTumbleOptions::Form_Load() {
    sizePreviewCard_.setAttributes(&pctCardSize, csNormal, fdFaceUp, vsCard, bsFirst);
    sizePreviewCard_.setRankAndSuit(rkAce, suSpade);
    centre(sizePreviewCard_, pctCardSize);
    sizePreviewCard_.draw();

    sldBackDesign.Min(bsFirst);
    sldBackDesign.Max(bsLast);
    sldBackDesign.Value(bsFirst);
    const auto backStyle = static_cast<BackStyle>(sldBackDesign.Value());
    backPreviewCard_.setAttributes(&pctBackDesign, csNormal, fdFaceDown, vsCard, backStyle);
    centre(backPreviewCard_, pctBackDesign);
    backPreviewCard_.draw();

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
    sizePreviewCard_.setAttributes(&pctCardSize, size, fdFaceUp, vsCard, bsFirst);
    centre(sizePreviewCard_, pctCardSize);
    pctCardSize.Cls();
    sizePreviewCard_.draw();
}

void frmTumbleOptions::chooseDeck(const OptionButton& button, DeckType dckType) {
    lblDeckDescription.Caption(button.Tag());
    curDeckType_ = dckType;
}

} // namespace tumble
