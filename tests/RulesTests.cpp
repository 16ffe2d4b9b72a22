#include "rules/PileAccepterTumble.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tumble {
namespace {

class PileRulesTest : public testing::Test {
protected:
    PileRulesTest() {
        pileCard.visibility(vsPile);
        pileCard.pack(std::make_shared<CardPack>());
    }
    bool accepts(const std::shared_ptr<Card>& crd) { return accepter.acceptCard(pileCard, *crd); }

    Table table;
    std::int16_t onPiles = 0;
    PileAccepterTumble accepter{[this] { return onPiles; }};
    Card pileCard;
};

TEST_F(PileRulesTest, EachDeckStartsItsPilesAndIsWonInItsOwnWay) {
    // clang-format off
    const std::vector<std::tuple<DeckType, CardRank, std::int16_t>> decks{
        {dtStandard, rkTwo, 52}, {dtStandardWithJokers, rkTwo, 54}, {dt36Card, rkSix, 36}, {dt32Card, rkSeven, 32},
        {dt24Card, rkNine, 24}, {dtDouble, rkTwo, 104}, {dtPinochle, rkNine, 48}, {dtBigPinochle, rkSeven, 64}};
    // clang-format on
    for (const auto& [dckType, lowestRank, cards] : decks) {
        SCOPED_TRACE(dckType);
        accepter.dckType(dckType);
        for (const int missing : {0, 1, 2}) {
            onPiles = static_cast<std::int16_t>(cards - missing);
            EXPECT_TRUE(accepts(makeCard(lowestRank, suHeart)));
            EXPECT_EQ(table.messages(), missing == 1 ? "YOU WIN: CONGRATULATIONS!" : "");
            EXPECT_FALSE(accepts(makeCard(rkKing, suHeart)));
            EXPECT_EQ(table.messages(),
                      "Invalid Move!: You must play the lowest ranking card, a " + CardConstants::rankName(lowestRank));
        }
    }
}

TEST_F(PileRulesTest, UnknownDeckKeepsTheLowestRankAndIsNeverWon) {
    EXPECT_TRUE(accepts(makeJoker()));
    EXPECT_FALSE(accepts(makeCard(rkTwo, suClub)));
    EXPECT_EQ(table.messages(), "Invalid Move!: You must play the lowest ranking card, a No Rank");
    accepter.dckType(dt24Card);
    for (const int unknown : {-1, 0, 9}) {
        accepter.dckType(static_cast<DeckType>(unknown));
        EXPECT_EQ(table.messages(), "Tumble: Invalid Deck Type!");
        for (const int count : {0, 23}) {
            onPiles = static_cast<std::int16_t>(count);
            EXPECT_TRUE(accepts(makeCard(rkNine, suClub)));
        }
        EXPECT_EQ(table.messages(), "");
    }
}

TEST_F(PileRulesTest, PileWithCardsIsBuiltUpInItsTopCardsSuit) {
    const std::string followSuit = "You must follow suit with a Club";
    const std::string sevenOrEight = "You must play either a Seven of Clubs or a Eight of Clubs or a Joker";
    const std::string kingOrAce = "You must play either a King of Hearts or a Ace of Hearts or a Joker";
    const std::string ace = "You must play either a Ace of Hearts or a Joker";
    const auto seven = makeCard(rkSeven, suClub);
    const auto aceOfHearts = makeCard(rkAce, suHeart);
    const std::vector<std::tuple<std::shared_ptr<Card>, std::shared_ptr<Card>, std::string>> cases{
        {seven, makeCard(rkSeven, suClub), ""},
        {seven, makeJoker(), ""},
        {seven, makeCard(rkEight, suSpade), followSuit},
        {seven, makeCard(rkSix, suClub), sevenOrEight},
        {seven, makeCard(rkNine, suSpade), sevenOrEight},                // both faults
        {seven, makeCard(static_cast<CardRank>(65536 + 8), suClub), ""}, // the step between ranks has 16 bits
        {makeCard(rkKing, suHeart), makeCard(rkJack, suHeart), kingOrAce},
        {aceOfHearts, aceOfHearts, ""},
        {aceOfHearts, makeCard(rkTwo, suHeart), ace},
        {makeJoker(), makeCard(rkKing, suSpade), ""}};
    for (const auto& [top, crd, refusal] : cases) {
        SCOPED_TRACE(crd->getStr() + " on " + top->getStr());
        pileCard.pack()->addCardToTop(top);
        EXPECT_EQ(accepts(crd), refusal.empty());
        EXPECT_EQ(table.messages(), refusal.empty() ? "" : "Invalid Move!: " + refusal);
    }
}

} // namespace
} // namespace tumble
