#include "platform/Picture.h"
#include "tests/Player.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>
#include <utility>

namespace tumble {
namespace {

PaintItem block(const Rect& place, Colour colour = 0xFF0000) {
    return {.place = place, .operations = {FillOperation{place, colour}}};
}

TEST(StopsTest, AreTheMiddlesOfTheLargestRectanglesThatItemsLeaveToSee) {
    const Picture picture("card", {});
    const PaintItem low = block({100, 100, 500, 500});
    const PaintItem card{low.place, {PictureOperation{&picture, low.place}, BoxOperation{low.place, 0}}};
    const PaintItem open{{150, 150, 450, 450}, {BoxOperation{{150, 150, 450, 450}, 0}}};
    const std::vector<std::tuple<std::vector<PaintItem>, std::optional<Ring>, std::vector<Point>>> cases{
        {{}, {}, {}},
        {{card, open}, {}, {{300, 300}}}, // what is not opaque hides nothing and is no stop
        {{low, block({200, 0, 600, 600})}, {}, {{149, 300}, {400, 300}}},
        {{low, block({200, 220, 600, 600})}, {}, {{300, 159}, {400, 410}}}, // of an L the larger leg
        {{low, block({220, 0, 300, 600}), block({0, 200, 600, 300})}, {}, {{400, 400}, {260, 450}, {300, 250}}},
        {{low, block({99.5F, 100, 500.5F, 500})}, {}, {{300, 300}}}, // nothing of the lower
        {{low, block({101.5F, 0, 600, 600})}, {}, {{100, 300}, {351, 300}}},
        {{low, block({100.5F, 0, 600, 600})}, {}, {{350, 300}}},          // less than a whole twip
        {{low, block({200, 0, 600, 600}, tableGreen)}, {}, {{149, 300}}}, // an erasure hides, and is no stop
        {{low, block({200, 200, 400, 400}), block({50, 50, 150, 550})}, {}, {{450, 300}, {300, 300}, {100, 300}}},
        {{block({0, 0, 400, 400}), block({100, 120, 300, 300})}, {}, {{200, 59}, {200, 210}}},
        {{block({0, 0, 400, 1000}), block({0, 0, 400, 300}), block({0, 700, 400, 1000})},
         {},
         {{200, 500}, {200, 150}, {200, 850}}},
        {{block({-500, -500, 40, 40}), block({2900, 1900, 3500, 2500}), block({2981, 1981, 3500, 2500})},
         {},
         {{20, 20}, {2940, 1940}}}, // within the part alone
        {{low, block({200, 0, 600, 600})}, Ring{{120, 300}}, {{400, 300}}},
        {{low, block({200, 0, 600, 600})}, Ring{{400, 300}}, {{149, 300}}},
        {{low, block({200, 0, 600, 600})}, Ring{{400, 300}, true}, {{300, 300}}}, // carried, it hides nothing
        {{low, block({200, 0, 600, 600}, tableGreen)}, Ring{{400, 300}, true}, {{149, 300}}}};
    for (const auto& [items, ring, expected] : cases) {
        Painting painting(3000, 2000, tableGreen);
        for (const PaintItem& item : items) {
            painting.add(item);
        }
        EXPECT_EQ(stops(painting, {0, 0, 2980, 1980}, ring), expected) << inWords(items);
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

/// The stops that some way leads to from the first one.
std::set<std::size_t> reached(const std::vector<std::vector<std::size_t>>& ways) {
    std::set<std::size_t> found{0};
    for (std::vector<std::size_t> open{0}; !open.empty();) {
        const std::size_t from = open.back();
        open.pop_back();
        std::copy_if(ways[from].begin(), ways[from].end(), std::back_inserter(open),
                     [&](std::size_t to) { return found.insert(to).second; });
    }
    return found;
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
        const std::vector<Point> all = stops(box.painting(), box.reach);
        std::set<const Card*> on;
        std::vector<std::vector<std::size_t>> ways(all.size());
        std::vector<std::vector<std::size_t>> back(all.size());
        for (std::size_t from = 0; from < all.size(); ++from) {
            on.insert(table.tracker().identifyCard(all[from].x, all[from].y).get());
            const std::vector<Point> others = stops(box.painting(), box.reach, Ring{all[from]});
            for (const Point arrow : {Point{-1, 0}, {0, -1}, {1, 0}, {0, 1}}) {
                if (const auto next = stopTowards(others, all[from], arrow)) {
                    const auto to = static_cast<std::size_t>(std::find(all.begin(), all.end(), *next) - all.begin());
                    ways[from].push_back(to);
                    back.at(to).push_back(from);
                }
            }
        }
        const std::size_t count =
            settings.layout == 1 ? 5 : static_cast<std::size_t>(cardsOfDeck.at(settings.deck)) + 4;
        EXPECT_TRUE(all.size() == count && on.size() == count && !on.contains(nullptr)) << all.size();
        EXPECT_EQ(reached(ways).size(), count);
        EXPECT_EQ(reached(back).size(), count);
    }
}

} // namespace
} // namespace tumble
