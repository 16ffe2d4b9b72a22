#include "platform/paint/Picture.h"
#include "tests/Player.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

namespace tumble {
namespace {

constexpr Colour blue = 0xFF0000;

TEST(StopsTest, AreTheMiddlesOfTheLargestRectanglesThatItemsLeaveToSee) {
    const Picture picture("card", {});
    const DisplayItem low = fill({100, 100, 500, 500}, blue);
    const DisplayItem card{low.bounds, {PictureOperation{&picture, low.bounds}, BoxOperation{low.bounds, 0}}};
    const DisplayItem open{{150, 150, 450, 450}, {BoxOperation{{150, 150, 450, 450}, 0}}};
    const std::vector<std::tuple<std::vector<DisplayItem>, std::optional<KeyboardCursor>, std::vector<Point>>> cases{
        {{}, {}, {}},
        {{card, open}, {}, {{300, 300}}}, // an item that is not opaque hides nothing and is no stop
        {{low, fill({200, 0, 600, 600}, blue)}, {}, {{149, 300}, {400, 300}}},
        {{low, fill({200, 220, 600, 600}, blue)}, {}, {{300, 159}, {400, 410}}}, // the larger leg of an L
        {{low, fill({220, 0, 300, 600}, blue), fill({0, 200, 600, 300}, blue)},
         {},
         {{400, 400}, {260, 450}, {300, 250}}},
        {{low, fill({99.5F, 100, 500.5F, 500}, blue)}, {}, {{300, 300}}}, // the lower item is hidden
        {{low, fill({101.5F, 0, 600, 600}, blue)}, {}, {{100, 300}, {351, 300}}},
        {{low, fill({100.5F, 0, 600, 600}, blue)}, {}, {{350, 300}}},    // less than a whole twip shows
        {{low, fill({200, 0, 600, 600}, tableGreen)}, {}, {{149, 300}}}, // an erasure hides and is no stop
        {{low, fill({200, 200, 400, 400}, blue), fill({50, 50, 150, 550}, blue)},
         {},
         {{450, 300}, {300, 300}, {100, 300}}},
        {{fill({0, 0, 400, 400}, blue), fill({100, 120, 300, 300}, blue)}, {}, {{200, 59}, {200, 210}}},
        {{fill({0, 0, 400, 1000}, blue), fill({0, 0, 400, 300}, blue), fill({0, 700, 400, 1000}, blue)},
         {},
         {{200, 500}, {200, 150}, {200, 850}}},
        {{fill({-500, -500, 40, 40}, blue), fill({2900, 1900, 3500, 2500}, blue), fill({2981, 1981, 3500, 2500}, blue)},
         {},
         {{20, 20}, {2940, 1940}}}, // inside the given part only
        {{low, fill({200, 0, 600, 600}, blue)}, KeyboardCursor{{120, 300}}, {{400, 300}}},
        {{low, fill({200, 0, 600, 600}, blue)}, KeyboardCursor{{400, 300}}, {{149, 300}}},
        {{low, fill({200, 0, 600, 600}, blue)},
         KeyboardCursor{{400, 300}, true},
         {{300, 300}}}, // a carried item hides none
        {{low, fill({200, 0, 600, 600}, tableGreen)}, KeyboardCursor{{400, 300}, true}, {{149, 300}}}};
    for (const auto& [items, cursor, expected] : cases) {
        EXPECT_EQ(stops(painted(items), {0, 0, 2980, 1980}, cursor), expected) << inWords(items);
    }
}

TEST(StopsTest, BestIsTheLeastWayAlongAndAcrossWithin45Degrees) {
    const std::vector<Point> places{{0, 0}, {100, 60}, {150, 0}, {100, 101}, {-50, 50}, {-60, 20}, {0, -900}};
    const std::vector<std::pair<Point, std::optional<Point>>> cases{
        {{1, 0}, Point{150, 0}}, {{0, 1}, Point{-50, 50}}, {{-1, 0}, Point{-60, 20}}, {{0, -1}, Point{0, -900}}};
    for (const auto& [direction, best] : cases) {
        EXPECT_EQ(stopTowards(places, {0, 0}, direction), best) << direction.x << "," << direction.y;
    }
    EXPECT_EQ(stopTowards(places, {150, 0}, {1, 0}), std::nullopt);
}

TEST(StopsTest, AreOneForEachCardAndPileAfterADealAndArrowsLeadFromEachToEveryOther) {
    for (std::size_t game = 0; game < 48; ++game) {
        SCOPED_TRACE(game);
        const Settings settings{
            .deck = game / 6, .size = game / 2 % 3, .order = 0, .layout = game % 2, .back = 0, .face = 0};
        Table table;
        table.program.Main();
        choose(table.program.options(), settings);
        table.program.options().cmdPlay.Click();
        const PictureBox& box = table.picture();
        const std::vector<Point> all = stops(box.displayList(), box.dragBounds);
        std::set<const Card*> on;
        std::vector<std::vector<std::size_t>> next(all.size()); // where the arrows lead from each stop
        for (std::size_t from = 0; from < all.size(); ++from) {
            on.insert(table.tracker().identifyCard(all[from].x, all[from].y).get());
            const std::vector<Point> others = stops(box.displayList(), box.dragBounds, KeyboardCursor{all[from]});
            for (const Point arrow : {Point{-1, 0}, {0, -1}, {1, 0}, {0, 1}}) {
                if (const auto stop = stopTowards(others, all[from], arrow)) {
                    next[from].push_back(
                        static_cast<std::size_t>(std::find(all.begin(), all.end(), *stop) - all.begin()));
                }
            }
        }
        const auto cards = static_cast<std::size_t>(settings.layout == 1 ? 1 : cardsOfDeck.at(settings.deck));
        EXPECT_TRUE(all.size() == cards + 4 && on.size() == all.size() && !on.contains(nullptr)) << all.size();
        for (std::size_t from = 0; from < all.size(); ++from) {
            std::vector<std::size_t> reached{from};
            for (std::size_t i = 0; i < reached.size(); ++i) {
                for (const std::size_t stop : next[reached[i]]) {
                    if (std::find(reached.begin(), reached.end(), stop) == reached.end()) {
                        reached.push_back(stop);
                    }
                }
            }
            EXPECT_EQ(reached.size(), all.size()) << from;
        }
    }
}

} // namespace
} // namespace tumble
