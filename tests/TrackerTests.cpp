#include "tests/Table.h"

#include <gtest/gtest.h>

#include <utility>

namespace tumble {
namespace {

// Three cards in a row, each overlapping the one before it, and a pile. The second card is current.
class CardTrackerTest : public testing::Test {
protected:
    CardTrackerTest() {
        table.lay(rkTwo, suClub, 0, 0);
        table.lay(rkThree, suClub, 500, 0);                     // to 1228, 1133
        tracker.addJoker(1000, 0, csSmall, fdFaceDown, bsLast); // to 1728, 1133
        table.layPile(1700, 1100);
        EXPECT_EQ(table.painted(), "TwoClubs 0,0; ThreeClubs 500,0; CardBack4 1000,0; green 1700,1100");
        tracker.identifyCard(600, 100);
    }
    Table table;
    CardTracker& tracker = table.tracker();
};

TEST_F(CardTrackerTest, PlaceFindsTheTopmostCardEdgesIncluded) {
    const std::vector<std::pair<Point, std::string>> cases{
        {{0, 0}, "Two of Clubs"},      {{-0.5F, 0}, "None"},     {{0, -0.5F}, "None"},
        {{499, 1133}, "Two of Clubs"}, {{499, 1133.5F}, "None"}, {{500, 0}, "Three of Clubs"},
        {{1728, 0}, "Joker"},          {{1728.5F, 0}, "None"},   {{1700, 1100}, "Pile (empty)"}};
    for (const auto& [at, found] : cases) {
        table.move(at);
        EXPECT_EQ(table.label(), found) << at.x << "," << at.y;
        EXPECT_EQ(tracker.checkSanity(), "");
    }
}

TEST_F(CardTrackerTest, CurrentCardIsBroughtToTheTopFlippedAndRemoved) {
    tracker.flipCurCard();
    EXPECT_EQ(table.painted(), "CardBack1 500,0; CardBack4 1000,0; green 1700,1100");
    tracker.bringCurCardToTop();
    tracker.flipCurCard();
    EXPECT_EQ(tracker.checkSanity(), "");
    EXPECT_EQ(table.painted(), "CardBack1 500,0; ThreeClubs 500,0");
    EXPECT_EQ(table.cards(), "TwoClubs 0,0; CardBack4 1000,0; green 1700,1100; ThreeClubs 500,0");
    tracker.identifyCard(0, 0);
    tracker.removeCurCard();
    EXPECT_EQ(table.painted(), "ground 0,0; CardBack4 1000,0; green 1700,1100; ThreeClubs 500,0");
    EXPECT_EQ(tracker.checkSanity(), "");
    tracker.bringCurCardToTop(); // without a current card
    tracker.flipCurCard();
    tracker.removeCurCard();
    EXPECT_EQ(table.painted(), "");
}

TEST_F(CardTrackerTest, TellsWhatIsOutOfOrder) {
    const auto five = makeCard(rkFive, suHeart);
    table.layPile(0, 0, {makeJoker(), five});
    EXPECT_EQ(tracker.checkSanity(), "");
    table.layPile(0, 0, {five});
    EXPECT_EQ(tracker.checkSanity(), "a card of a pack lies in a second place");
    Table other;
    other.layPile(0, 0, {five});
    other.tracker().addExistingCard(five);
    EXPECT_EQ(other.tracker().checkSanity(), "a card lies on the table twice");
}

// Small cards: 729 by 1134 twips.
class DragTest : public testing::Test {
protected:
    Table table;
    CardTracker& tracker = table.tracker();
};

TEST_F(DragTest, StepMovesOnceAndBeyondTheLimitsDropsTheCardWhereItLies) {
    table.lay(rkFive, suHeart, 1000.5F, 1000.5F); // its edge counts as 1000
    for (const Point to : {Point{8944.5F, 3000}, {-0.5F, 3000}, {3000, 5944.5F}, {3000, -0.5F}}) {
        table.press({1010, 1020});
        table.painted();
        tracker.moveCurCard(to.x, to.y);
        EXPECT_EQ(table.painted(), "FiveHearts 1000.5,1000.5; FiveHearts 1000.5,1000.5") << to.x << "," << to.y;
        EXPECT_FALSE(tracker.moveInProg());
    }
    for (const Point to : {Point{0, 0}, {8944, 5944}}) {
        table.press({1010, 1020});
        tracker.moveCurCard(to.x, to.y);
        tracker.moveCurCard(1010, 1020);
        EXPECT_EQ(table.cards(), to.x == 0 ? "FiveHearts -10,-20" : "FiveHearts 8934,5924");
        table.drag({to.x, to.y}, {1010, 1020});
    }
    table.press({1010, 1020});
    table.move({-1, 1020}); // dropped, and still held
    table.release({9, 1020});
    EXPECT_EQ(table.cards(), "FiveHearts 0,1000");
}

TEST_F(DragTest, PileShowsTheCardAtOnceThatItTakesAndLiesUnderTheOneItRefuses) {
    table.layPile(3000, 0, {makeCard(rkFour, suHeart)}, table.accepter);
    table.layPile(6000, 0, {}, table.accepter);
    table.lay(rkFive, suHeart, 1000, 1000);
    table.lay(rkSix, suHeart, 5000, 1000);
    table.drag({1000, 1000}, {6010, 20});
    table.press({6010, 20});
    table.move({3010, 20});
    table.painted();
    table.release({3010, 20});
    EXPECT_EQ(table.painted(),
              "ground 3010,20; marked yellow 3000,0; blue 6000,0; blue 5000,1000; FiveHearts 3010,20; "
              "ground 3010,20; FiveHearts 3000,0; edge of 2 3000,0; green 6000,0; SixHearts 5000,1000");
    EXPECT_EQ(table.messages(), "Invalid Move!: You must play the lowest ranking card, a Two");
}

TEST_F(DragTest, PressOnAPileTakesItsTopCard) {
    table.layPile(3000.5F, 101.5F, {makeCard(rkFour, suHeart), makeCard(rkFive, suHeart)});
    table.lay(rkSix, suHeart, 5000, 1000);
    table.painted();
    table.press({3100, 302});
    table.move({1100, 1200});
    EXPECT_EQ(table.painted(), "ground 3000,102; marked yellow 3000.5,101.5; blue 5000,1000; FiveHearts 1000,1000");
    table.release({1100, 1200});
    table.drag({3100, 302}, {3100, 302}); // a click returns the card
    table.drag({3100, 302}, {7100, 1200});
    EXPECT_EQ(table.cards(), "green 3000.5,101.5; SixHearts 5000,1000; FiveHearts 1000,1000; FourHearts 7000,1000");
}

TEST_F(DragTest, MouseAndCardStayTogetherOnEveryWayOutOfTheTableAndBack) {
    table.lay(rkFive, suHeart, 1000, 1000);
    const std::vector<std::pair<std::vector<Point>, std::string>> ways{
        {{{1100, 7000}, {9000, 9000}, {4100, 3100}}, "FiveHearts 4000,2999"}, // each way out shifts the card by a twip
        {{{8990, 1100}, {8990, 5900}, {3100, 2100}}, "FiveHearts 2999,2000"},
        {{{-500, -500}, {3100, 2100}}, "FiveHearts 3001,2001"},
        {{{20000, 1100}, {-400, 1100}, {20000, 7000}, {1100, 1100}}, "FiveHearts 999,1000"}};
    for (const auto& [way, shown] : ways) {
        const auto crd = table.tracker().identifyCard(1100, 1100);
        table.press({1100, 1100});
        for (const Point at : way) {
            table.move(at);
        }
        table.release(way.back());
        EXPECT_EQ(table.cards(), shown);
        crd->setPosition(1000, 1000, paNear, paNear);
    }
    table.press({1100, 1100});
    table.painted();
    table.move({5022, -300}); // crosses the upper edge at 4182
    table.move({9000, 9000});
    EXPECT_EQ(table.painted(), "ground 1000,1000; FiveHearts 4082,-100; FiveHearts 4082,-100; FiveHearts 4082,-100");
}

TEST_F(DragTest, ButtonLetGoUnderABoxIsHeldUntilTheNextRelease) {
    table.layPile(8000, 0, {}, table.accepter);
    table.lay(rkFive, suHeart, 1000, 1000);
    table.desktop.whileMessageIsOpen = [&] {
        table.release({5000, 3000});
        table.press({1100, 1100}, 2);
        table.move({5000, 3000});
        table.program.table().cmdHelp.Click();
        table.program.table().cmdExit.Click();
    };
    table.press({1100, 1100});
    table.move({8100, 100});
    table.move({8100, -100});
    EXPECT_EQ(table.messages(), "Invalid Move!: You must play the lowest ranking card, a Two");
    EXPECT_FALSE(table.desktop.ended());
    table.capture.inputUnblocked();
    table.pointer.move(0, 0, {2100, 2100});
    EXPECT_TRUE(table.tracker().moveInProg());
    table.capture.releaseAll();
    EXPECT_FALSE(table.tracker().moveInProg());
    EXPECT_EQ(table.cards(), "green 8000,0; FiveHearts 2000,2001");
    table.capture.detach();
    table.press({2100, 2100});
    EXPECT_FALSE(table.tracker().moveInProg());
}

TEST_F(DragTest, PressMeanwhileLeavesADragAsItIsAndReleaseOfAnyButtonEndsIt) {
    const auto pile = table.layPile(3000, 0, {makeJoker()});
    table.layPile(6000, 0);
    table.lay(rkSix, suHeart, 5000, 2000);
    const std::vector<std::pair<Point, std::int16_t>> presses{{{0, 0}, 1},    {{0, 0}, 4},    {{6000, 0}, 1},
                                                              {{6000, 0}, 4}, {{3000, 0}, 4}, {{5000, 2000}, 4}};
    for (const bool armed : {false, true}) {
        for (const auto& [at, button] : presses) {
            if (armed) {
                table.picture().MouseDown(1, 7, 5000, 2000); // with Shift, Ctrl and Alt held
            }
            table.press(at, button);
            EXPECT_EQ(tracker.moveInProg(), armed);
            table.move(at);
            EXPECT_TRUE(tracker.moveInProg() == armed && pile->numCards() == 1);
            table.picture().MouseUp(2, 0, at.x, at.y);
            EXPECT_FALSE(tracker.moveInProg());
        }
    }
}

// The card is dropped at (3000, 2000); its lower right corner is (3728, 3133).
TEST_F(DragTest, PileThatTheCardCoversMostCloselyTakesIt) {
    // clang-format off
    const std::vector<std::pair<std::vector<Point>, std::string>> cases{
        {{{2272, 2000}}, "2272,2000"}, {{{2271, 2000}}, "3000,2000"}, {{{3728, 2000}}, "3728,2000"},
        {{{3729, 2000}}, "3000,2000"}, {{{3000, 867}}, "3000,867"}, {{{3000, 866}}, "3000,2000"},
        {{{3000, 3133}}, "3000,3133"}, {{{3000, 3134}}, "3000,2000"},
        {{{2501, 2000}, {3500, 2000}}, "2501,2000"}, {{{3499, 2000}, {2500, 2000}}, "3499,2000"},
        {{{3000, 1500}, {3000, 2499}}, "3000,2499"}, {{{3000, 2501}, {3000, 1500}}, "3000,1500"},
        {{{2500, 2000}, {3500, 2000}}, "2500,2000"}, // of equal areas the earlier pile
        {{{3400, 2000}, {3000, 2500}}, "3000,2500"}}; // 1128 by 1133 against 728 by 1633
    // clang-format on
    for (const auto& [piles, place] : cases) {
        Table fresh;
        for (const Point at : piles) {
            fresh.layPile(at.x, at.y);
        }
        fresh.lay(rkFive, suHeart, 100, 100);
        fresh.drag({100, 100}, {3000, 2000});
        EXPECT_NE(fresh.cards().find("FiveHearts " + place), std::string::npos) << place;
    }
}

} // namespace
} // namespace tumble
