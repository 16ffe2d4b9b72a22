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
    /// Whether the pile accepts the card, and the message. 23 cards lie on the piles.
    std::string answer(const std::shared_ptr<Card>& crd) {
        const bool taken = table.accepter->acceptCard(pileCard, *crd);
        return (taken ? "taken " : "refused ") + table.messages();
    }

    Table table;
    Card pileCard;
};

TEST_F(PileRulesTest, EmptyPileTakesTheLowestRankOfTheLastKnownDeckAndTheLastCardWins) {
    const std::string lowest = "refused Invalid Move!: You must play the lowest ranking card, a ";
    EXPECT_EQ(answer(makeJoker()), "taken ");
    EXPECT_EQ(answer(makeCard(rkNine, suClub)), lowest + "Two");
    table.accepter->dckType(dt24Card);
    EXPECT_EQ(answer(makeCard(rkTwo, suClub)), lowest + "Nine");
    EXPECT_EQ(answer(makeCard(rkNine, suClub)), "taken YOU WIN: CONGRATULATIONS!");
    for (const int unknown : {-1, 0, 9}) {
        table.accepter->dckType(static_cast<DeckType>(unknown));
        EXPECT_EQ(table.messages(), "Tumble: Invalid Deck Type!");
        EXPECT_EQ(answer(makeCard(rkNine, suClub)), "taken ");
    }
}

TEST_F(PileRulesTest, PileWithCardsIsBuiltUpInItsTopCardsSuit) {
    const std::string either = "refused Invalid Move!: You must play either ";
    const auto seven = makeCard(rkSeven, suClub);
    const auto aceOfHearts = makeCard(rkAce, suHeart);
    const std::vector<std::tuple<std::shared_ptr<Card>, std::shared_ptr<Card>, std::string>> cases{
        {seven, makeCard(rkSeven, suClub), "taken "},
        {seven, makeJoker(), "taken "},
        {seven, makeCard(rkEight, suSpade), "refused Invalid Move!: You must follow suit with a Club"},
        {seven, makeCard(rkSix, suClub), either + "a Seven of Clubs or a Eight of Clubs or a Joker"},
        {seven, makeCard(rkNine, suSpade), either + "a Seven of Clubs or a Eight of Clubs or a Joker"}, // both wrong
        {seven, makeCard(static_cast<CardRank>(65536 + 8), suClub), "taken "}, // the difference of ranks has 16 bits
        {aceOfHearts, aceOfHearts, "taken "},
        {aceOfHearts, makeCard(rkTwo, suHeart), either + "a Ace of Hearts or a Joker"},
        {makeJoker(), makeCard(rkKing, suSpade), "taken "}};
    for (const auto& [top, crd, expected] : cases) {
        pileCard.pack()->addCardToTop(top);
        EXPECT_EQ(answer(crd), expected) << crd->getStr() << " on " << top->getStr();
    }
}

} // namespace
} // namespace tumble
