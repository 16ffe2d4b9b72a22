#include "tests/Table.h"

#include <gtest/gtest.h>

#include <utility>

namespace tumble {
namespace {

TEST(CardTrackerTest, AddedCardsLieOnTopAndAreDrawnAtOnce) {
    Table table;
    CardTracker& tracker = table.tracker();
    const auto pack = std::make_shared<CardPack>();
    tracker.addCard(rkFive, suHeart, 100, 200, csNormal, fdFaceUp, bsLast);
    tracker.addJoker(700, 250, csMedium, fdFaceDown, bsLast);
    tracker.addPileCard(2000, 300, csSmall, pack);
    tracker.addPileCard(8944, 5944, csMedium, pack, paFar, paFar);
    EXPECT_EQ(table.painted(), "FiveHearts 100,200; CardBack4 700,250; green 2000,300; green 8045,4545");
    EXPECT_EQ(tracker.identifyCard(8944, 5944)->pack(), pack);
}

TEST(CardTrackerTest, PlaceFindsTheTopmostCardEdgesIncluded) {
    Table table;
    table.lay(rkFive, suHeart, 100, 200); // to 828, 1333
    table.lay(rkSix, suHeart, 500, 200);  // to 1228, 1333
    table.layPile(1200, 1300);
    const std::vector<std::pair<Point, std::string>> cases{
        {{100, 200}, "Five of Hearts"},  {{99.5F, 200}, ""},   {{100, 199.5F}, ""},
        {{499, 1333}, "Five of Hearts"}, {{499, 1333.5F}, ""}, {{500, 200}, "Six of Hearts"},
        {{1228, 200}, "Six of Hearts"},  {{1228.5F, 200}, ""}, {{1200, 1300}, "Pile (empty)"}};
    for (const auto& [at, found] : cases) {
        EXPECT_EQ(table.nameAt(at), found) << at.x << "," << at.y;
        EXPECT_EQ(table.tracker().checkSanity(), "");
    }
    table.tracker().identifyCard(500, 200)->visibility({});
    EXPECT_EQ(table.nameAt({500, 200}), "Five of Hearts");
}

// Three cards side by side, each a little over the one before it; the second is the current one.
class CurrentCardTest : public testing::Test {
protected:
    CurrentCardTest() {
        table.lay(rkTwo, suClub, 0, 0);
        table.lay(rkThree, suClub, 500, 0);
        table.lay(rkFour, suClub, 1000, 0);
        table.painted();
        tracker.identifyCard(600, 100);
    }
    Table table;
    CardTracker& tracker = table.tracker();
};

TEST_F(CurrentCardTest, IsBroughtToTheTopAndDrawnAlone) {
    tracker.bringCurCardToTop();
    tracker.flipCurCard();
    EXPECT_EQ(tracker.checkSanity(), "");
    EXPECT_EQ(table.painted(), "ThreeClubs 500,0; CardBack1 500,0");
    EXPECT_EQ(table.cards(), "TwoClubs 0,0; FourClubs 1000,0; CardBack1 500,0");
}

TEST_F(CurrentCardTest, IsFlippedAndRemovedAmongTheOthers) {
    tracker.flipCurCard();
    EXPECT_EQ(table.painted(), "CardBack1 500,0; FourClubs 1000,0");
    tracker.removeCurCard();
    EXPECT_EQ(table.painted(), "ground 500,0; TwoClubs 0,0; FourClubs 1000,0");
    EXPECT_EQ(tracker.checkSanity(), "");
}

TEST_F(CurrentCardTest, WithNoneNothingIsDone) {
    tracker.identifyCard(5000, 5000);
    tracker.bringCurCardToTop();
    tracker.flipCurCard();
    tracker.removeCurCard();
    tracker.startCurCardMove(5000, 5000);
    EXPECT_FALSE(tracker.moveInProg());
    EXPECT_EQ(table.painted(), "");
    EXPECT_EQ(table.cards(), "TwoClubs 0,0; ThreeClubs 500,0; FourClubs 1000,0");
}

TEST(CardTrackerTest, TellsWhatIsOutOfOrder) {
    Table table;
    const auto five = makeCard(rkFive, suHeart);
    table.layPile(0, 0, {makeJoker(), five});
    EXPECT_EQ(table.tracker().checkSanity(), "");
    table.layPile(0, 0, {five});
    EXPECT_EQ(table.tracker().checkSanity(), "a card of a pack lies in a second place");
    Table other;
    other.layPile(0, 0, {five});
    other.tracker().addExistingCard(five);
    EXPECT_EQ(other.tracker().checkSanity(), "a card lies on the table twice");
    five->visibility({});
    EXPECT_EQ(other.tracker().checkSanity(), "what is neither a card nor a pile lies on the table");
}

} // namespace
} // namespace tumble
