#pragma once

#include "cards/Card.h"
#include "platform/forms/Form.h"

#include <functional>

namespace tumble {

/// The options dialog: the six settings of a game, with previews of the card size and the back design.
class frmTumbleOptions : public Form {
public:
    using StartGame = std::function<void(CardSize size, BackStyle backStyle, FaceDirection faceDir, DeckType dckType,
                                         SortOrder sortOrder, LayoutStyle inPile)>;

    /// The Play button hides the dialog and calls `startGame`, once.
    explicit frmTumbleOptions(StartGame startGame);

    void Form_Load() override;
    void Form_Close() override { cmdExit_Click(); }

    void cmdPlay_Click();
    void cmdExit_Click();

    void optCardSmall_Click() { showSize(csSmall); }
    void optCardMedium_Click() { showSize(csMedium); }
    void optCardNormal_Click() { showSize(csNormal); }

    void sldBackDesign_Change();

    void optNaturalOrder_Click() { curSortOrder_ = soNatural; }
    void optShuffled_Click() { curSortOrder_ = soShuffled; }
    void optByRankSuitAsc_Click() { curSortOrder_ = soRankSuitAsc; }
    void optByRankSuitDesc_Click() { curSortOrder_ = soRankSuitDesc; }
    void optBySuitRankAsc_Click() { curSortOrder_ = soSuitRankAsc; }
    void optBySuitRankDesc_Click() { curSortOrder_ = soSuitRankDesc; }

    void optFaceUp_Click() { curFaceDir_ = fdFaceUp; }
    void optFaceDown_Click() { curFaceDir_ = fdFaceDown; }

    void optLayoutSpread_Click() { curInPile_ = lsSpread; }
    void optLayoutInPile_Click() { curInPile_ = lsInPile; }

    void optDeckStandard_Click() { chooseDeck(optDeckStandard, dtStandard); }
    void optDeckStandardWithJokers_Click() { chooseDeck(optDeckStandardWithJokers, dtStandardWithJokers); }
    void optDeck36Card_Click() { chooseDeck(optDeck36Card, dt36Card); }
    void optDeck32Card_Click() { chooseDeck(optDeck32Card, dt32Card); }
    void optDeck24Card_Click() { chooseDeck(optDeck24Card, dt24Card); }
    void optDeckDouble_Click() { chooseDeck(optDeckDouble, dtDouble); }
    void optDeckPinochle_Click() { chooseDeck(optDeckPinochle, dtPinochle); }
    void optDeckBigPinochle_Click() { chooseDeck(optDeckBigPinochle, dtBigPinochle); }

private:
    void showSize(CardSize size);
    void chooseDeck(const OptionButton& button, DeckType dckType);

    StartGame startGame_;
    Card sizePreviewCard_;
    Card backPreviewCard_;
    FaceDirection curFaceDir_ = fdFaceUp;
    DeckType curDeckType_ = dtStandard;
    SortOrder curSortOrder_ = soNatural;
    LayoutStyle curInPile_ = lsSpread;

public:
    // The controls: container, name, caption, place (left, top, width, height), tab position, handler, tag.
    // clang-format off
    CommandButton cmdPlay{*this, "cmdPlay", "&Play", {6360, 4200, 2055, 855}, 0, [this] { cmdPlay_Click(); }, {Key::Enter}, ButtonFace::IconAboveCaption};
    CommandButton cmdExit{*this, "cmdExit", "E&xit", {6360, 3720, 2055, 375}, 1, [this] { cmdExit_Click(); }, {Key::Esc}};

    Frame fraCardSize{*this, "fraCardSize", "Card Size", {120, 120, 2895, 2415}, 2, {.bold = true}};
    OptionButton optCardSmall{fraCardSize, "optCardSmall", "Small", {240, 240, 855, 375}, 3, [this] { optCardSmall_Click(); }};
    OptionButton optCardMedium{fraCardSize, "optCardMedium", "Medium", {240, 600, 1095, 375}, 4, [this] { optCardMedium_Click(); }};
    OptionButton optCardNormal{fraCardSize, "optCardNormal", "Normal", {240, 960, 975, 495}, 5, [this] { optCardNormal_Click(); }, "", Choice::Selected};
    PictureBox pctCardSize{fraCardSize, "pctCardSize", "Card size preview", {1320, 240, 1335, 1935}, 30, windowColour};

    Frame fraBackDesign{*this, "fraBackDesign", "Back Design", {3240, 120, 2895, 2415}, 6, {.bold = true}};
    Slider sldBackDesign{fraBackDesign, "sldBackDesign", "Back design", {360, 360, 630, 1935}, 7, bsFirst, bsLast, [this] { sldBackDesign_Change(); }};
    PictureBox pctBackDesign{fraBackDesign, "pctBackDesign", "Back design preview", {1320, 240, 1335, 1935}, 31, windowColour};

    Frame fraCardOrder{*this, "fraCardOrder", "Card Order", {6360, 120, 2055, 3495}, 8, {.bold = true}};
    OptionButton optNaturalOrder{fraCardOrder, "optNaturalOrder", "Natural", {240, 240, 1335, 375}, 9, [this] { optNaturalOrder_Click(); }, "", Choice::Selected};
    OptionButton optShuffled{fraCardOrder, "optShuffled", "Shuffled", {240, 720, 1575, 375}, 10, [this] { optShuffled_Click(); }};
    OptionButton optByRankSuitAsc{fraCardOrder, "optByRankSuitAsc", "By rank then suit, ascending", {240, 1200, 1575, 375}, 11, [this] { optByRankSuitAsc_Click(); }};
    OptionButton optByRankSuitDesc{fraCardOrder, "optByRankSuitDesc", "By rank then suit, descending", {240, 1680, 1695, 495}, 12, [this] { optByRankSuitDesc_Click(); }};
    OptionButton optBySuitRankAsc{fraCardOrder, "optBySuitRankAsc", "By suit then rank, ascending", {240, 2280, 1575, 495}, 13, [this] { optBySuitRankAsc_Click(); }};
    OptionButton optBySuitRankDesc{fraCardOrder, "optBySuitRankDesc", "By suit then rank, descending", {240, 2880, 1695, 375}, 14, [this] { optBySuitRankDesc_Click(); }};

    Frame fraFaceDir{*this, "fraFaceDir", "Face Direction", {120, 2760, 1695, 1095}, 15, {.bold = true}};
    OptionButton optFaceUp{fraFaceDir, "optFaceUp", "Face Up", {240, 240, 1335, 375}, 16, [this] { optFaceUp_Click(); }, "", Choice::Selected};
    OptionButton optFaceDown{fraFaceDir, "optFaceDown", "Face Down", {240, 600, 1335, 375}, 17, [this] { optFaceDown_Click(); }};

    Frame fraLayout{*this, "fraLayout", "Card Layout", {120, 3960, 1695, 1095}, 18, {.bold = true}};
    OptionButton optLayoutSpread{fraLayout, "optLayoutSpread", "Spread", {240, 240, 1095, 375}, 19, [this] { optLayoutSpread_Click(); }, "", Choice::Selected};
    OptionButton optLayoutInPile{fraLayout, "optLayoutInPile", "In Pile", {240, 600, 1215, 255}, 20, [this] { optLayoutInPile_Click(); }};

    Frame fraDeckType{*this, "fraDeckType", "Deck Type", {2040, 2760, 4095, 2295}, 21, {.bold = true}};
    OptionButton optDeckStandard{fraDeckType, "optDeckStandard", "Standard", {240, 240, 1575, 255}, 22, [this] { optDeckStandard_Click(); }, "Standard 52-card deck", Choice::Selected};
    OptionButton optDeckStandardWithJokers{fraDeckType, "optDeckStandardWithJokers", "Standard with Jokers", {240, 480, 1935, 255}, 23, [this] { optDeckStandardWithJokers_Click(); }, "Standard 52-card deck plus two jokers"};
    OptionButton optDeck36Card{fraDeckType, "optDeck36Card", "36-card deck", {240, 720, 1815, 255}, 24, [this] { optDeck36Card_Click(); }, "Standard 52-card deck without any 2, 3, 4, or 5s"};
    OptionButton optDeck32Card{fraDeckType, "optDeck32Card", "32-card deck", {240, 960, 1815, 255}, 25, [this] { optDeck32Card_Click(); }, "Standard 52-card deck without any 2, 3, 4, 5, or 6s"};
    OptionButton optDeck24Card{fraDeckType, "optDeck24Card", "24-card deck", {240, 1200, 1455, 255}, 26, [this] { optDeck24Card_Click(); }, "Standard 52-card deck without any 2, 3, 4, 5, 6, 7, or 8s"};
    OptionButton optDeckDouble{fraDeckType, "optDeckDouble", "Double", {240, 1440, 1455, 255}, 27, [this] { optDeckDouble_Click(); }, "Two standard 52-card decks"};
    OptionButton optDeckPinochle{fraDeckType, "optDeckPinochle", "Pinochle", {240, 1680, 1215, 255}, 28, [this] { optDeckPinochle_Click(); }, "Two 24-card decks"};
    OptionButton optDeckBigPinochle{fraDeckType, "optDeckBigPinochle", "Big Pinochle", {240, 1920, 1455, 255}, 29, [this] { optDeckBigPinochle_Click(); }, "Two 32-card decks"};
    Label lblDeckDescription{fraDeckType, "lblDeckDescription", "", {2280, 720, 1575, 1095}, 32, {.bold = true}, TextAlign::Centre};
    // clang-format on
};

} // namespace tumble
