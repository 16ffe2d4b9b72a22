#include "tests/Table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace tumble {
namespace {

class CardPackTest : public testing::Test {
protected:
    CardPackTest() { pack->tracker(&table.tracker()); }

    Table table;
    std::shared_ptr<CardPack> pack = std::make_shared<CardPack>();
};

TEST_F(CardPackTest, DealsInRowsThatEndWithTheCardPastTheBound) {
    pack->init(csSmall, fdFaceUp, bsFirst, dtStandard);
    pack->dealToTable(1300, 1000, 2178); // exactly the right edge of the second card
    const std::string painted = table.painted();
    EXPECT_TRUE(painted.starts_with("TwoDiamonds 1300,1000; TwoClubs 1450,1000; TwoHearts 1600,1000; "
                                    "TwoSpades 1300,2000; ThreeDiamonds 1450,2000; "));
    EXPECT_EQ(table.cards(), painted);
    EXPECT_EQ(pack->numCards(), 0);
}

TEST_F(CardPackTest, SortsIntoEachKnownOrderAndLeavesEqualCardsAsTheyWere) {
    pack->init(csSmall, fdFaceUp, bsFirst, dtDouble);
    pack->init(csSmall, fdFaceUp, bsFirst, dtStandardWithJokers);
    pack->init(csSmall, fdFaceUp, bsFirst, static_cast<DeckType>(9));
    EXPECT_EQ(pack->numCards(), 158);
    pack->seeTopCard()->setAsJoker(); // which then has a rank and suit that mean nothing
    for (const SortOrder sortOrder :
         {soRankSuitAsc, soSuitRankDesc, soNatural, static_cast<SortOrder>(6), soRankSuitDesc, soSuitRankAsc}) {
        const bool byRank = sortOrder <= soRankSuitDesc;
        const auto key = [byRank](const auto& crd) {
            const int rank = crd->rank();
            return crd->joker() ? 1000 : byRank ? 10 * rank + crd->suit() : rank + 100 * crd->suit();
        };
        const auto below = [&key](const auto& one, const auto& other) { return key(one) < key(other); };
        Cards expected = pack->cards();
        if (sortOrder >= soRankSuitAsc && sortOrder <= soSuitRankDesc) {
            std::stable_sort(expected.begin(), expected.end(), below);
        }
        if (sortOrder == soRankSuitDesc || sortOrder == soSuitRankDesc) {
            std::reverse(expected.begin(), expected.end());
        }
        pack->sort(sortOrder);
        EXPECT_EQ(pack->cards(), expected) << sortOrder;
    }
    EXPECT_EQ(table.messages(), "Tumble: Invalid Deck Type!; Tumble: Invalid pack sorting order!");
}

// The largest value below 1 gives a position past the end of 152 cards. 28256362 / 2147483647 is the least value that
// gives position 2.
TEST_F(CardPackTest, ShuffleSwapsTheDrawnPlacesAndDrawsBothAgainPastTheEnd) {
    ScriptedRandom& random = table.desktop.random();
    pack->sort(soShuffled);
    EXPECT_EQ(random.seeded(), 0); // no cards
    pack->init(csSmall, fdFaceUp, bsFirst, dtDouble);
    pack->init(csSmall, fdFaceUp, bsFirst, dtPinochle);
    constexpr float pastTheEnd = 1 - 0x1p-24F;
    std::vector<float> values{0.5F, pastTheEnd, pastTheEnd, 0.5F, 14128181 * 0x1p-30F, 0, 0.007F, 0.9999F};
    values.resize(20 * 152 + 4);
    random.script(values);
    Cards expected = pack->cards();
    std::swap(expected[2], expected[0]);
    std::swap(expected[1], expected[151]);
    pack->sort(soShuffled);
    EXPECT_EQ(pack->cards(), expected);
    EXPECT_EQ(random.seeded(), 1);
    EXPECT_EQ(random.drawn(), values.size());
}

} // namespace
} // namespace tumble
