#include "tests/Table.h"

#include <gtest/gtest.h>

#include <utility>

namespace tumble {
namespace {

/// Gives one answer to every card, and says what it was asked.
class Answer : public PileAccepter {
public:
    explicit Answer(bool accepts) : accepts_(accepts) {}
    bool acceptCard(const Card& pileCard, const Card& crd) override {
        asked += crd.getStr() + " on " + pileCard.getStr() + "; ";
        return accepts_;
    }
    std::string asked;

private:
    bool accepts_;
};

// Small cards: 729 by 1134 twips.
class DragTest : public testing::Test {
protected:
    Table table;
    CardTracker& tracker = table.tracker();
    std::shared_ptr<Answer> refuser = std::make_shared<Answer>(false);
    std::shared_ptr<Answer> taker = std::make_shared<Answer>(true);
};

TEST_F(DragTest, EachStepMarksWhatLayUnderTheOldPlace) {
    table.lay(rkFive, suHeart, 1000, 1000);
    table.lay(rkSix, suHeart, 1728, 2000);
    table.lay(rkSeven, suHeart, 3000, 3000);
    table.painted();
    table.press({1100, 1250});
    table.move({2600, 3250});
    EXPECT_EQ(table.painted(), "ground 1000,1000; marked yellow 1728,2000; blue 3000,3000; FiveHearts 2500,3000");
    EXPECT_TRUE(tracker.moveInProg());
    table.release({4610, 3261});
    EXPECT_EQ(table.painted(),
              "ground 2500,3000; blue 1728,2000; marked yellow 3000,3000; FiveHearts 4510,3011; "
              "SixHearts 1728,2000; SevenHearts 3000,3000; FiveHearts 4510,3011; FiveHearts 4510,3011");
}

TEST_F(DragTest, StepMovesOnceAndDisarms) {
    table.lay(rkFive, suHeart, 1000.5F, 1000.5F); // held by its edge rounded to 1000
    tracker.identifyCard(1100, 1100);
    tracker.startCurCardMove(1100, 1100);
    table.painted();
    tracker.moveCurCard(1101, 1100);
    tracker.moveCurCard(2000, 2000);
    EXPECT_EQ(table.painted(), "ground 1000.5,1000.5; FiveHearts 1001,1000");
}

TEST_F(DragTest, MouseBeyondTheLimitsDropsTheCardWhereItLies) {
    const std::vector<std::pair<Point, bool>> cases{{{0, 0}, true},           {{8944, 5944}, true},
                                                    {{8944.5F, 3000}, false}, {{-0.5F, 3000}, false},
                                                    {{3000, 5944.5F}, false}, {{3000, -0.5F}, false}};
    for (const auto& [to, moves] : cases) {
        Table fresh;
        fresh.lay(rkFive, suHeart, 1000, 1000);
        fresh.press({1010, 1020});
        fresh.painted();
        fresh.tracker().moveCurCard(to.x, to.y);
        EXPECT_EQ(fresh.painted() == "FiveHearts 1000,1000; FiveHearts 1000,1000", !moves) << to.x << "," << to.y;
    }
}

TEST_F(DragTest, RefusedBeyondTheLimitsTheDragGoesOn) {
    table.layPile(8200, 1000, {}, refuser);
    table.lay(rkFive, suHeart, 8000, 1000);
    table.press({8000, 1000});
    table.move({9000, 1500});
    EXPECT_TRUE(tracker.moveInProg());
    table.move({8500, 1600}); // now held 1000 to the left of the mouse and 500 above it
    EXPECT_EQ(table.cards(), "green 8200,1000; FiveHearts 7500,1100");
    table.press({7500, 1100});
    table.release({9000, 1000}); // drops in the step, and again for the release
    EXPECT_EQ(refuser->asked.size(), 3 * std::string("Five of Hearts on Pile (empty); ").size());
}

TEST_F(DragTest, TakenBeyondTheLimitsTheDragIsOver) {
    const auto pile = table.layPile(8200, 1000, {}, taker);
    table.lay(rkFive, suHeart, 8000, 1000);
    table.press({8000, 1000});
    table.move({9000, 1000});
    EXPECT_FALSE(tracker.moveInProg());
    table.drag({8200, 1000}, {8000, 1000}); // off the pile, and back over the limits at once
    EXPECT_EQ(pile->numCards(), 1);
    table.press({8200, 1000});
    table.release({9000, 1000});
    EXPECT_EQ(pile->numCards(), 1);
    EXPECT_FALSE(tracker.moveInProg());
}

TEST_F(DragTest, PileShowsTheCardAtOnceThatItTakesAndLiesUnderTheOneItRefuses) {
    table.layPile(3000, 0, {makeCard(rkFour, suHeart)}, taker);
    table.layPile(6000, 0, {}, refuser);
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
    EXPECT_EQ(refuser->asked + taker->asked,
              "Five of Hearts on Pile (empty); Five of Hearts on Pile (Four of Hearts); ");
}

TEST_F(DragTest, PressOnAPileTakesItsTopCard) {
    table.layPile(3000.5F, 101.5F, {makeCard(rkFour, suHeart), makeCard(rkFive, suHeart)});
    table.lay(rkSix, suHeart, 5000, 1000);
    table.painted();
    table.press({3100, 302});
    table.move({1100, 1200});
    EXPECT_EQ(table.painted(), "ground 3000,102; marked yellow 3000.5,101.5; blue 5000,1000; FiveHearts 1000,1000");
    table.release({1100, 1200});
    table.drag({3100, 302}, {7100, 1200});
    EXPECT_EQ(table.cards(), "green 3000.5,101.5; SixHearts 5000,1000; FiveHearts 1000,1000; FourHearts 7000,1000");
}

TEST_F(DragTest, ClickOnAPileOffersItsTopCardBackIfItHasOne) {
    table.layPile(7000, 0);
    table.layPile(3000, 0, {makeCard(rkFour, suHeart), makeCard(rkFive, suHeart)});
    table.layPile(5000, 0, {makeCard(rkSix, suHeart)}, refuser);
    for (const Point at : {Point{7000, 0}, Point{3100, 100}, Point{5100, 100}}) {
        table.drag(at, at);
    }
    EXPECT_EQ(table.cards(), "green 7000,0; FiveHearts 3000,0; edge of 2 3000,0; green 5000,0; SixHearts 5000,0");
}

// The card is dropped at (3000, 2000), so it reaches to (3728, 3133).
TEST_F(DragTest, PileThatTheCardCoversMostCloselyTakesIt) {
    // clang-format off
    const std::vector<std::pair<std::vector<Point>, std::size_t>> cases{
        {{{2272, 2000}}, 0}, {{{2271, 2000}}, 1}, {{{3728, 2000}}, 0}, {{{3729, 2000}}, 1},
        {{{3000, 867}}, 0},  {{{3000, 866}}, 1},  {{{3000, 3133}}, 0}, {{{3000, 3134}}, 1},
        {{{2501, 2000}, {3500, 2000}}, 0}, {{{3499, 2000}, {2500, 2000}}, 0},
        {{{3000, 1500}, {3000, 2499}}, 1}, {{{3000, 2501}, {3000, 1500}}, 1},
        {{{2500, 2000}, {3500, 2000}}, 0}, // the same area: the earlier one
        {{{3400, 2000}, {3000, 2500}}, 1}}; // 1128 by 1133 against 728 by 1633
    // clang-format on
    for (const auto& [piles, target] : cases) {
        Table fresh;
        std::vector<std::shared_ptr<CardPack>> packs;
        for (const Point at : piles) {
            packs.push_back(fresh.layPile(at.x, at.y));
        }
        fresh.lay(rkFive, suHeart, 100, 100);
        fresh.drag({100, 100}, {3000, 2000});
        for (std::size_t i = 0; i < packs.size(); ++i) {
            EXPECT_EQ(packs[i]->numCards(), i == target ? 1 : 0) << piles[0].x << "," << piles[0].y << " " << i;
        }
    }
}

// While a drag is armed the mouse may press on something else, which then is the current card.
TEST_F(DragTest, OnlyALeftPressOnAPileWithCardsChangesWhatIsDragged) {
    const auto pile = table.layPile(3000, 0, {makeCard(rkFour, suHeart)}, refuser);
    table.layPile(5000, 0, {}, refuser);
    table.lay(rkFive, suHeart, 1000, 1000);
    const std::string before = table.cards();
    const std::vector<std::pair<Point, std::int16_t>> presses{
        {{7000, 5000}, 1}, {{7000, 5000}, 4}, {{3100, 100}, 2}, {{3100, 100}, 4}, {{5100, 100}, 1}};
    for (const auto& [at, button] : presses) {
        for (const Point to : {at, Point{9000, 9000}}) {
            table.press({1000, 1000});
            table.press(at, button);
            table.painted();
            table.move(to);
            EXPECT_EQ(table.painted(), "");
            table.release(to);
            EXPECT_EQ(table.painted(), before);
            EXPECT_FALSE(tracker.moveInProg());
        }
    }
    EXPECT_EQ(refuser->asked, "");
    table.press({1000, 1000});
    table.drag({3100, 100}, {7100, 100});
    EXPECT_EQ(table.cards(), "green 3000,0; green 5000,0; FiveHearts 1000,1000; FourHearts 7000,0");
}

} // namespace
} // namespace tumble
