#include "tests/Table.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace tumble {
namespace {

TEST(CardTrackerTest, AddedCardsLieOnTopAndAreDrawnAtOnce) {
    Table table;
    CardTracker& tracker = table.tracker();
    const auto pack = std::make_shared<CardPack>();
    tracker.addCard(rkFive, suHeart, 100, 200, csNormal, fdFaceUp, bsLast);
    tracker.addCard(rkSix, suHeart, 300, 200, csSmall, fdFaceDown, bsLast);
    tracker.addJoker(500, 250, csMedium, fdFaceUp, bsLast);
    tracker.addJoker(700, 250, csMedium, fdFaceDown, bsLast);
    tracker.addPileCard(2000, 300, csSmall, pack);
    tracker.addPileCard(8944, 5944, csMedium, pack, paFar, paFar);
    EXPECT_EQ(table.painted(), "FiveHearts 100,200; CardBack4 300,200; Joker 500,250; CardBack4 700,250; "
                               "green 2000,300; green 8045,4545");
    EXPECT_EQ(table.nameAt({100, 2117}), "Five of Hearts");
    EXPECT_EQ(table.nameAt({1599, 1649}), "Joker");
    EXPECT_EQ(tracker.identifyCard(8944, 5944)->pack(), pack);

    tracker.addExistingCard(makeCard(rkTwo, suClub));
    EXPECT_EQ(table.painted(), "");
}

TEST(CardTrackerTest, PlaceFindsTheTopmostCardEdgesIncluded) {
    Table table;
    EXPECT_EQ(table.nameAt({0, 0}), "");
    table.lay(rkFive, suHeart, 100, 200); // to 828, 1333
    table.lay(rkSix, suHeart, 500, 200);  // to 1228, 1333
    table.layPile(1200, 1300);            // to 1928, 2433
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
    ~CurrentCardTest() override { EXPECT_EQ(tracker.checkSanity(), ""); }

    Table table;
    CardTracker& tracker = table.tracker();
};

TEST_F(CurrentCardTest, IsBroughtToTheTopAndDrawnAlone) {
    tracker.bringCurCardToTop();
    tracker.flipCurCard();
    EXPECT_EQ(table.painted(), "ThreeClubs 500,0; CardBack1 500,0");
    EXPECT_EQ(table.cards(), "TwoClubs 0,0; FourClubs 1000,0; CardBack1 500,0");
}

TEST_F(CurrentCardTest, IsFlippedAndRemovedAmongTheOthers) {
    tracker.flipCurCard();
    EXPECT_EQ(table.painted(), "CardBack1 500,0; FourClubs 1000,0");
    tracker.removeCurCard();
    EXPECT_EQ(table.painted(), "ground 500,0; TwoClubs 0,0; FourClubs 1000,0");
    tracker.flipCurCard();
    EXPECT_EQ(table.painted(), "");
}

TEST_F(CurrentCardTest, WithNoneNothingIsDone) {
    tracker.identifyCard(5000, 5000);
    tracker.bringCurCardToTop();
    tracker.flipCurCard();
    tracker.removeCurCard();
    tracker.startCurCardMove(5000, 5000);
    EXPECT_FALSE(tracker.moveInProg());
    tracker.moveCurCard(600, 100);
    EXPECT_EQ(table.painted(), "");
    EXPECT_EQ(table.cards(), "TwoClubs 0,0; ThreeClubs 500,0; FourClubs 1000,0");
}

TEST(CardTrackerTest, TellsWhatIsOutOfOrder) {
    const auto five = makeCard(rkFive, suHeart);
    five->visibility(vsCard);
    const auto layFive = [&](Table& table) { table.tracker().addExistingCard(five); };
    const auto layPile = [&](Table& table) { table.layPile(0, 0, {makeJoker(), five}); };
    const std::vector<std::pair<std::string, std::vector<std::function<void(Table&)>>>> cases{
        {"", {layPile}},
        {"a card lies on the table twice", {layFive, layFive}},
        {"a card lies on the table twice", {layPile, layFive}},
        {"a card of a pack lies in a second place", {layFive, layPile}},
        {"a card of a pack lies in a second place", {layPile, layPile}},
        {"what is neither a card nor a pile lies on the table", {layFive, [&](auto&) { five->visibility({}); }}}};
    for (const auto& [fault, steps] : cases) {
        Table table;
        for (const auto& step : steps) {
            step(table);
        }
        EXPECT_EQ(table.tracker().checkSanity(), fault);
    }
}

} // namespace
} // namespace tumble
