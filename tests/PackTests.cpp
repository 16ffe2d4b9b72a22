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

TEST_F(CardPackTest, DealsInRowsThatEndWithTheCardPastTheBound) {
    const std::vector<std::tuple<CardSize, float, std::size_t>> cases{
        {csMedium, 7644, 38}, {csNormal, 7644, 36}, {csSmall, 2028, 2}, {csSmall, 2027, 1}};
    for (const auto& [size, x2, perRow] : cases) {
        Table fresh;
        pack->tracker(&fresh.tracker());
        pack->init(size, fdFaceUp, bsFirst, dtStandard);
        std::string expected;
        for (std::size_t i = 0; i < 52; ++i) {
            expected += (i == 0 ? "" : "; ") + CardConstants::rankName(static_cast<CardRank>(2 + i / 4)) +
                        CardConstants::suitName(static_cast<CardSuit>(i % 4)) + "s " +
                        std::to_string(1300 + 150 * (i % perRow)) + "," + std::to_string(1000 + 1000 * (i / perRow));
        }
        pack->dealToTable(1300, 1000, x2);
        EXPECT_EQ(fresh.painted(), expected);
        EXPECT_EQ(fresh.cards(), expected);
        EXPECT_EQ(pack->numCards(), 0);
    }
}

TEST_F(CardPackTest, SortsIntoEachOrderAndLeavesEqualCardsAsTheyWere) {
    const auto rankKey = [](const Card& crd) { return std::tuple(crd.joker(), int{crd.rank()}, int{crd.suit()}); };
    const auto suitKey = [](const Card& crd) { return std::tuple(crd.joker(), int{crd.suit()}, int{crd.rank()}); };
    for (const int sortOrder : {-1, 0, 2, 3, 4, 5, 6}) {
        pack->takeTopCard();
        pack->init(csSmall, fdFaceUp, bsFirst, dtStandardWithJokers);
        Cards expected = pack->cards();
        const auto key = sortOrder <= 3 ? +rankKey : +suitKey;
        const auto below = [&](const auto& one, const auto& other) { return key(*one) < key(*other); };
        if (sortOrder >= 2 && sortOrder <= 5) {
            std::stable_sort(expected.begin(), expected.end(), below);
        }
        if (sortOrder == 3 || sortOrder == 5) {
            std::reverse(expected.begin(), expected.end());
        }
        pack->sort(static_cast<SortOrder>(sortOrder));
        EXPECT_EQ(pack->cards(), expected) << sortOrder;
        EXPECT_EQ(table.messages(), sortOrder < 0 || sortOrder > 5 ? "Tumble: Invalid pack sorting order!" : "");
    }
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
    pack = std::make_shared<CardPack>();
    for (const int cards : {0, 1}) {
        pack->sort(soShuffled);
        EXPECT_EQ(table.desktop.random().seeded(), 1 + cards);
        pack->addCardToTop(makeJoker());
    }
}

TEST_F(CardPackTest, HoldsThousandsOfCards) {
    table.desktop.random().script({0.9F, 0.1F, 0.3F, 0.7F, 0.5F});
    for (int deck = 0; deck < 20; ++deck) {
        pack->init(csSmall, fdFaceUp, bsFirst, dtDouble);
    }
    for (const SortOrder sortOrder : {soShuffled, soSuitRankAsc, soRankSuitDesc}) {
        pack->sort(sortOrder);
    }
    EXPECT_EQ(pack->cards().at(39)->getStr() + ", " + pack->cards().at(40)->getStr(), "Ace of Spades, Ace of Hearts");
    pack->placeAsPile(0, 0);
    EXPECT_EQ(table.painted(), "TwoDiamonds 0,0; edge of 2080 0,0");
    pack->dealToTable(1300, 1000, 7644);
    EXPECT_EQ(table.nameAt({1310, 54010}), "Two of Diamonds"); // the first in the 54th row of 39
    EXPECT_EQ(table.tracker().checkSanity(), "");
}

TEST(CardOrderTest, TellsCardsApartByRankAndSuitAndJokersAboveAll) {
    const auto jokerOnceAKing = makeCard(rkKing, suSpade);
    jokerOnceAKing->setAsJoker();
    const std::vector<std::tuple<std::shared_ptr<Card>, std::shared_ptr<Card>, int, int>> cases{
        {makeCard(rkTwo, suSpade), makeCard(rkThree, suDiamond), -1, 1},
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
