#include "game/MainMod.h"

#include "assets/Assets.h"
#include "platform/paint/Picture.h"
#include "rules/PileAccepterTumble.h"

namespace tumble {

namespace {

constexpr float spreadLeft = 1300; // twips, as all below
constexpr float spreadTop = 1000;
// To the right of the spread and the right piles, and below the lower piles.
constexpr float pileMargin = CardTracker::margin;

} // namespace

Application application() {
    static const Picture icon("Tumble", Assets::icon());
    return {.Title = "Tumble",
            .Major = TUMBLE_VERSION_MAJOR,
            .Minor = TUMBLE_VERSION_MINOR,
            .Revision = TUMBLE_VERSION_PATCH,
            .Icon = icon,
            .Width = frmTumble::clientWidth,
            .Height = frmTumble::clientHeight};
}

MainMod::MainMod() : options_([this](auto... settings) { startGame(settings...); }), table_(tableTracker) {}

void MainMod::Main() {
    options_.Show();
}

void MainMod::startGame(CardSize size, BackStyle backStyle, FaceDirection faceDir, DeckType dckType,
                        SortOrder sortOrder, LayoutStyle inPile) {
    options_.Unload();
    table_.Show();
    table_.MousePointer(Pointer::Hourglass);
    table_.Refresh();

    const auto accepter = std::make_shared<PileAccepterTumble>([this] { return numPileCards(); });
    accepter->dckType(dckType);
    tableTracker = std::make_unique<CardTracker>();
    tableTracker->picture(&table_.picTable);

    const float W = table_.picTable.Width();
    const float H = table_.picTable.Height();
    const auto deck = std::make_shared<CardPack>();
    deck->tracker(tableTracker.get());
    deck->init(size, faceDir, backStyle, dckType);
    deck->sort(sortOrder);
    if (inPile != lsSpread) {
        deck->placeAsPile(W / 2, H / 2, paCenter, paCenter);
    } else {
        deck->dealToTable(spreadLeft, spreadTop, W - spreadLeft - pileMargin);
    }

    const auto buildPile = [&](std::shared_ptr<CardPack>& pile, float X, float Y, PileAlign xAlign, PileAlign yAlign) {
        pile = std::make_shared<CardPack>();
        pile->tracker(tableTracker.get());
        pile->accepter(accepter);
        pile->init(size, fdFaceUp, backStyle, dtEmpty);
        pile->placeAsPile(X, Y, xAlign, yAlign);
    };
    buildPile(pileTopLeft, 0, 0, paNear, paNear);
    buildPile(pileTopRight, W - pileMargin, 0, paFar, paNear);
    buildPile(pileBottomLeft, 0, H - pileMargin, paNear, paFar);
    buildPile(pileBottomRight, W - pileMargin, H - pileMargin, paFar, paFar);

    table_.MousePointer(Pointer::Default);
}

std::int16_t MainMod::numPileCards() const {
    return static_cast<std::int16_t>(pileTopLeft->numCards() + pileTopRight->numCards() + pileBottomLeft->numCards() +
                                     pileBottomRight->numCards());
}

} // namespace tumble
