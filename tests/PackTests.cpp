#include "packs/OrderRankSuit.h"
#include "packs/OrderSuitRank.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace tumble {
namespace {

class CardPackTest : public testing::Test {
protected:
    CardPackTest() { pack->tracker(&table.tracker()); }

    Table table;
    std::shared_ptr<CardPack> pack = std::make_shared<CardPack>();
};

TEST_F(CardPackTest, DeckOfEachTypeRunsFromItsLowestRankToAce) {
    const std::vector<std::tuple<int, int, int, std::size_t>> decks{
        {dtEmpty, 2, 0, 0},    {dtStandard, 2, 0, 52}, {dtStandardWithJokers, 2, 2, 54},
        {dt36Card, 6, 0, 36},  {dt32Card, 7, 0, 32},   {dt24Card, 9, 0, 24},
        {dtDouble, 2, 0, 104}, {dtPinochle, 9, 0, 48}, {dtBigPinochle, 7, 0, 64}};
    for (const auto& [dckType, lowestRank, jokers, cards] : decks) {
        SCOPED_TRACE(dckType);
        pack = std::make_shared<CardPack>();
        pack->tracker(&table.tracker());
        pack->init(csMedium, fdFaceUp, bsLast, static_cast<DeckType>(dckType));
        ASSERT_EQ(pack->cards().size(), cards);
        for (std::size_t i = 0; i < cards; ++i) {
            const Card& crd = *pack->cards()[i];
            const int dealt = static_cast<int>(i) - jokers; // in runs of the four suits, again for each copy
            EXPECT_EQ(crd.joker(), dealt < 0);
            EXPECT_EQ(crd.rank(), dealt < 0 ? 0 : lowestRank + dealt / 4 % (15 - lowestRank));
            EXPECT_EQ(crd.suit(), dealt < 0 ? 0 : dealt % 4);
            EXPECT_EQ(crd.size(), csMedium);
        }
    }
    EXPECT_EQ(table.messages(), "");
}

TEST_F(CardPackTest, UnknownDeckTypeIsReportedAndGivesTheAttributesOnly) {
    pack->init(csSmall, fdFaceUp, bsFirst, dt24Card);
    for (const int unknown : {-1, 9}) {
        pack->init(csNormal, fdFaceDown, bsLast, static_cast<DeckType>(unknown));
        EXPECT_EQ(table.messages(), "Tumble: Invalid Deck Type!");
    }
    pack->placeAsPile(8944, 5944, paFar, paFar);
    EXPECT_EQ(table.painted(), "CardBack4 7712,4027; edge of 24 7712,4027");
    pack->init(csNormal, fdFaceUp, bsFirst, dtStandardWithJokers); // on top of what is there
    EXPECT_EQ(pack->numCards(), 78);
    EXPECT_EQ(pack->cards()[24]->getStr(), "Joker");
    EXPECT_EQ(pack->cards()[23]->backStyle(), bsFirst);
}

TEST_F(CardPackTest, DealsInRowsThatEndWithTheCardPastTheBound) {
    const std::vector<std::tuple<CardSize, float, std::size_t>> cases{
        {csSmall, 7644, 39}, {csMedium, 7644, 38}, {csNormal, 7644, 36}, {csSmall, 2028, 2}, {csSmall, 2027, 1}};
    for (const auto& [size, x2, perRow] : cases) {
        Table fresh;
        pack->tracker(&fresh.tracker());
        pack->init(size, fdFaceUp, bsFirst, dtStandard);
        std::string expected;
        for (std::size_t i = 0; i < 52; ++i) {
            const Card& crd = *pack->cards()[i];
            expected += (i == 0 ? "" : "; ") + crd.getRankStr() + crd.getSuitStr() + "s " +
                        std::to_string(1300 + 150 * (i % perRow)) + "," + std::to_string(1000 + 1000 * (i / perRow));
        }
        pack->dealToTable(1300, 1000, x2);
        EXPECT_EQ(fresh.painted(), expected);
        EXPECT_EQ(fresh.cards(), expected);
        EXPECT_EQ(pack->numCards(), 0);
    }
}

TEST_F(CardPackTest, CardsComeAndGoAtTheTop) {
    EXPECT_EQ(pack->seeTopCard(), nullptr);
    EXPECT_EQ(pack->takeTopCard(), nullptr);
    const Cards cards{makeCard(rkTwo, suClub), makeCard(rkThree, suClub), makeCard(rkFour, suClub)};
    for (const auto& crd : cards) {
        pack->addCardToTop(crd);
        EXPECT_EQ(pack->seeTopCard(), crd);
    }
    pack->reverse();
    EXPECT_EQ(pack->cards(), (Cards{cards[2], cards[1], cards[0]}));
    EXPECT_EQ(pack->takeTopCard(), cards[0]);
    EXPECT_EQ(pack->cards(), (Cards{cards[2], cards[1]}));
}

TEST_F(CardPackTest, SortsIntoEachOrderAndLeavesEqualCardsAsTheyWere) {
    const auto rankKey = [](const Card& crd) { return std::tuple(crd.joker(), int{crd.rank()}, int{crd.suit()}); };
    const auto suitKey = [](const Card& crd) { return std::tuple(crd.joker(), int{crd.suit()}, int{crd.rank()}); };
    for (const int sortOrder : {-1, 0, 2, 3, 4, 5, 6}) {
        pack->takeTopCard();
        pack->init(csSmall, fdFaceUp, bsFirst, dtStandardWithJokers);
        Cards expected = pack->cards();
        if (sortOrder >= 2 && sortOrder <= 5) {
            const auto key = sortOrder <= 3 ? +rankKey : +suitKey;
            std::stable_sort(expected.begin(), expected.end(),
                             [&](const auto& one, const auto& other) { return key(*one) < key(*other); });
        }
        if (sortOrder == 3 || sortOrder == 5) {
            std::reverse(expected.begin(), expected.end());
        }
        pack->sort(static_cast<SortOrder>(sortOrder));
        EXPECT_EQ(pack->cards(), expected) << sortOrder;
        EXPECT_EQ(table.messages(), sortOrder < 0 || sortOrder > 5 ? "Tumble: Invalid pack sorting order!" : "");
    }
    EXPECT_EQ(table.desktop.random().seeded(), 0);
}

// Values one hair below 1 give a place past the end of 152 cards; 28256362 / 2147483647 is the first to give place 2.
TEST_F(CardPackTest, ShuffleSwapsTheDrawnPlacesAndDrawsBothAgainPastTheEnd) {
    pack->init(csSmall, fdFaceUp, bsFirst, dtDouble);
    pack->init(csSmall, fdFaceUp, bsFirst, dtPinochle);
    constexpr float pastTheEnd = 1 - 0x1p-24F;
    std::vector<float> values{0.5F, pastTheEnd, pastTheEnd, 0.5F, 14128181 * 0x1p-30F, 0, 0.007F, 0.9999F};
    values.resize(20 * 152 + 4);
    table.desktop.random().script(values);
    Cards expected = pack->cards();
    std::swap(expected[2], expected[0]);
    std::swap(expected[1], expected[151]);
    pack->sort(soShuffled);
    EXPECT_EQ(pack->cards(), expected);
    EXPECT_EQ(table.desktop.random().seeded(), 1);
    EXPECT_EQ(table.desktop.random().drawn(), values.size());
}

TEST_F(CardPackTest, ShuffleDrawsForOneCardButNotForNone) {
    table.desktop.random().script({0.5F});
    pack->sort(soShuffled);
    EXPECT_EQ(table.desktop.random().seeded(), 0);
    pack->addCardToTop(makeJoker());
    pack->sort(soShuffled);
    EXPECT_EQ(table.desktop.random().seeded(), 1);
    EXPECT_EQ(table.desktop.random().drawn(), 20U);
}

TEST(CardOrderTest, TellsCardsApartByRankAndSuitAndJokersAboveAll) {
    const auto jokerOnceAKing = makeCard(rkKing, suSpade);
    jokerOnceAKing->setAsJoker();
    const auto twoOfClubs = makeCard(rkTwo, suClub);
    const std::vector<std::tuple<std::shared_ptr<Card>, std::shared_ptr<Card>, int, int>> cases{
        {makeCard(rkTwo, suSpade), makeCard(rkThree, suDiamond), -1, 1},
        {twoOfClubs, makeCard(rkTwo, suHeart), -1, -1},
        {twoOfClubs, makeCard(rkNine, suClub), -1, -1},
        {twoOfClubs, twoOfClubs, 0, 0},
        {makeCard(rkAce, suSpade), makeJoker(), -1, -1},
        {makeJoker(), jokerOnceAKing, 0, 0}};
    for (const auto& [card1, card2, byRankSuit, bySuitRank] : cases) {
        EXPECT_EQ(OrderRankSuit().fcmp(*card1, *card2), byRankSuit);
        EXPECT_EQ(OrderRankSuit().fcmp(*card2, *card1), -byRankSuit);
        EXPECT_EQ(OrderSuitRank().fcmp(*card1, *card2), bySuitRank);
        EXPECT_EQ(OrderSuitRank().fcmp(*card2, *card1), -bySuitRank);
    }
}

TEST(SorterTest, ComparesEachCardOfAnOrderedListOnce) {
    class CountingOrder : public OrderRankSuit {
    public:
        std::int16_t fcmp(const Card& card1, const Card& card2) const override {
            ++comparisons;
            return OrderRankSuit::fcmp(card1, card2);
        }
        mutable int comparisons = 0;
    };
    Cards cards{makeCard(rkTwo, suClub), makeCard(rkThree, suClub), makeCard(rkFour, suClub), makeCard(rkFive, suClub)};
    const CountingOrder order;
    Sorter::sortCards(cards, order);
    EXPECT_EQ(order.comparisons, 3);
    std::reverse(cards.begin(), cards.end());
    Sorter::sortCards(cards, order);
    EXPECT_EQ(order.comparisons, 3 + 6); // each with all below it
}

} // namespace
} // namespace tumble
