#include "platform/Random.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace tumble {
namespace {

TEST(MainModTest, MainShowsTheOptionsAndPlayOpensTheTable) {
    MemoryDesktop desktop(application());
    MainMod program;
    program.Main();
    EXPECT_EQ(program.tableTracker, nullptr);
    program.options().cmdPlay.Click();
    EXPECT_EQ(desktop.journal(),
              (std::vector<std::string>{"show Tumble Options", "hide Tumble Options", "unload Tumble Options",
                                        "show Tumble", "pointer 11", "refresh Tumble", "pointer 0"}));
}

TEST(MainModTest, SpreadDealsThePackAndLaysThePilesOverIt) {
    Table table;
    MainMod& program = table.program;
    program.startGame(csNormal, bsLast, fdFaceDown, dtStandard, soNatural, lsSpread);
    const std::string painted = table.painted();
    EXPECT_TRUE(painted.ends_with("; CardBack4 3550,2000; green 0,0; green 7712,0; green 0,4027; green 7712,4027"));
    for (const auto& pile : {program.pileTopRight, program.pileBottomLeft, program.pileBottomRight}) {
        EXPECT_EQ(pile->accepter(), program.pileTopLeft->accepter());
    }
}

TEST(MainModTest, AnyOtherLayoutLaysThePackInTheMiddle) {
    for (const int layout : {-1, 1}) {
        Table table;
        table.program.startGame(csMedium, bsFirst, fdFaceUp, dt24Card, soSuitRankDesc,
                                static_cast<LayoutStyle>(layout));
        EXPECT_EQ(table.painted(), "NineDiamonds 4057.5,2307.5; edge of 24 4057.5,2307.5; green 0,0; green 8045,0; "
                                   "green 0,4545; green 8045,4545");
        EXPECT_EQ(table.tracker().identifyCard(4500, 3000)->pack()->accepter(), nullptr);
    }
}

TEST(MainModTest, InvalidSettingsAreReportedAndTheGameGoesOn) {
    Table table;
    const frmTumble& window = table.program.table();
    table.desktop.whileMessageIsOpen = [&] { EXPECT_EQ(window.MousePointer(), Pointer::Hourglass); };
    table.program.startGame(static_cast<CardSize>(3), bsFirst, fdFaceUp, static_cast<DeckType>(9),
                            static_cast<SortOrder>(6), lsSpread);
    const std::string size = "; Tumble: Invalid card size!"; // once for each corner
    EXPECT_EQ(table.messages(), "Tumble: Invalid Deck Type!; Tumble: Invalid Deck Type!; "
                                "Tumble: Invalid pack sorting order!" +
                                    size + size + size + size);
    EXPECT_EQ(window.MousePointer(), Pointer::Default);
}

TEST(TableWindowTest, LabelNamesTheCardUnderTheMouseAndARightPressFlipsIt) {
    Table table;
    table.lay(rkFive, suHeart, 100, 100);
    table.layPile(3000, 100, {makeCard(rkSix, suSpade)});
    const std::vector<std::pair<Point, std::string>> cases{
        {{110, 110}, "Five of Hearts"}, {{5000, 5000}, "None"}, {{3010, 110}, "Pile (Six of Spades)"}};
    for (const auto& [at, name] : cases) {
        table.move(at);
        EXPECT_EQ(table.label(), name);
        table.move({8000, 5000});
        table.press(at, 4);
        EXPECT_EQ(table.label(), name);
    }
    table.drag({110, 110}, {3010, 4510});
    EXPECT_EQ(table.label(), "Five of Hearts"); // until the mouse moves again
    table.painted();
    table.press({3010, 4510}, 2); // flips the card and drags nothing
    table.release({200, 200});
    EXPECT_EQ(table.painted(), "CardBack1 3000,4500");
}

TEST(TableWindowTest, HelpIsWordForWord) {
    Table table;
    table.program.table().cmdHelp.Click();
    EXPECT_EQ(table.messages(), "Tumble Instructions: "
                                "Drag each of the cards to one of the corner piles. Each pile must\r\n"
                                "contain a different suit, and the cards must be built up from\r\n"
                                "lowest card (Two) to highest card (Ace).  Right-click on a card to\r\n"
                                "flip it (you cannot flip piles).");
}

TEST(ClockRandomTest, ValuesFillTheRangeFromZeroToBelowOne) {
    ClockRandom random;
    std::vector<float> values(2000);
    std::generate(values.begin(), values.end(), [&] { return random.Rnd(); });
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    EXPECT_TRUE(*least >= 0 && *least < 0.01F && *most > 0.99F && *most < 1);
    ClockRandom seeded;
    seeded.Randomize();
    EXPECT_NE(seeded.Rnd(), values.front());
}

} // namespace
} // namespace tumble
