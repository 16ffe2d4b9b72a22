#include "platform/Picture.h"
#include "tests/Player.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
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

/// A box with six blocks on it that notes what it hears: "down 1 0 200,100" with button and shift keys.
class Blocks : public Form {
public:
    Blocks() : Form("Blocks", 3000, 2000) {
        for (const Point middle : {Point{200, 200}, {1100, 200}, {2700, 200}, {200, 1600}, {2700, 1600}, {1500, 900}}) {
            const Rect place = Rect{middle.x, middle.y, middle.x, middle.y}.grown(100);
            box.Paint(place).Line(place, 0, BoxFill::Filled);
        }
        box.reach = {0, 0, 2929, 1929};
        const auto note = [this](const std::string& what) {
            return [this, what](auto Button, auto Shift, float X, float Y) {
                std::ostringstream event;
                event << what << " " << Button << " " << Shift << " " << X << "," << Y << "; ";
                heard += event.str();
            };
        };
        box.MouseDown = note("down");
        box.MouseMove = note("move");
        box.MouseUp = note("up");
    }

    PictureBox box{*this, "box", "", {0, 0, 3000, 2000}, 0, tableGreen};
    std::string heard;
};

struct Input {
    /// Presses keys, in words: "Home Shift+Left held+Space"; gives those that are not the pointer's, and
    /// what the box has heard since the last call.
    std::string press(const std::string& keys) {
        static const std::map<std::string, PointerKey> names{
            {"Left", PointerKey::Left},   {"Up", PointerKey::Up},
            {"Right", PointerKey::Right}, {"Down", PointerKey::Down},
            {"Home", PointerKey::Home},   {"PageUp", PointerKey::PageUp},
            {"End", PointerKey::End},     {"PageDown", PointerKey::PageDown},
            {"Space", PointerKey::Space}, {"F", PointerKey::F},
            {"Menu", PointerKey::Menu},   {"F10", PointerKey::F10}};
        std::istringstream words(keys);
        std::string others;
        for (std::string word; words >> word;) {
            const auto with = [&](const char* prefix) { return word.find(prefix) != std::string::npos; };
            others += pointer.key({.key = names.at(word.substr(word.rfind('+') + 1)),
                                   .shift = with("Shift+"),
                                   .control = with("Ctrl+"),
                                   .alt = with("Alt+"),
                                   .meta = with("Meta+"),
                                   .repeated = with("held+")})
                          ? ""
                          : word + " ";
        }
        return others + heard();
    }
    std::string heard() { return std::exchange(form.heard, ""); }
    void expectRing(Point at, bool holds) const { EXPECT_EQ(pointer.ring(), (Ring{at, holds})); }

    MemoryDesktop desktop{application()};
    Blocks form;
    Hand hand{form.box};
    KeyboardPointer pointer{hand};
    Finger finger{pointer};
};

TEST(KeyboardPointerTest, EachKeyDoesItsOwnAndTheFirstOnlyShowsThePointer) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"Left", "move 0 0 200,200; "},
        {"Up", "move 0 0 1100,200; "},
        {"Right", "move 0 0 2700,200; "},
        {"Down", ""},
        {"Home Shift+Home", "move 0 0 200,200; "}, // where it stays
        {"PageUp", "move 0 0 2700,200; "},
        {"End held+Right", "move 0 0 200,1600; move 0 0 1500,900; "},
        {"PageDown", "move 0 0 2700,1600; "},
        {"Shift+Left held+Shift+Up", "move 0 1 1350,900; move 0 1 1350,750; "},
        {"Ctrl+Shift+Right held+Ctrl+Shift+Down", "move 0 3 1515,900; move 0 3 1515,915; "},
        {"PageDown Shift+Right Shift+Right Shift+Right",
         "move 0 0 2700,1600; move 0 1 2850,1600; move 0 1 2929,1600; "},
        {"Space held+Space Home Space held+Space",
         "down 1 0 1500,900; move 1 0 200,200; up 1 0 200,200; move 0 0 200,200; "},
        {"F held+F", "down 2 0 1500,900; up 2 0 1500,900; "},
        {"Menu held+Menu", "down 2 0 1500,900; up 2 0 1500,900; "},
        {"Shift+F10 held+Shift+F10", "down 2 1 1500,900; up 2 1 1500,900; "},
        {"Space F", "down 1 0 1500,900; down 2 0 1500,900; up 2 0 1500,900; up 1 0 1500,900; move 0 0 1500,900; "}};
    for (const auto& [keys, heard] : cases) {
        Input input;
        EXPECT_EQ(input.pointer.ring(), std::nullopt);
        EXPECT_EQ(input.press("held+Right"), "move 0 0 1500,900; ");
        EXPECT_EQ(input.press(keys), heard) << keys;
    }
    Input input;
    const std::string others =
        "F10 Ctrl+F Alt+F Meta+F Ctrl+Space Alt+Menu Ctrl+Left Alt+Shift+Up Meta+Down Ctrl+Home ";
    EXPECT_EQ(input.press(others), others);
    EXPECT_EQ(input.pointer.ring(), std::nullopt);
    input.form.box.Cls();
    EXPECT_EQ(input.press("Space Left Home F"),
              "move 0 0 1464,964; down 2 0 1464,964; up 2 0 1464,964; "); // without any stop
}

TEST(KeyboardPointerTest, GoesWhenTheMouseMovesFarOrPressesAndComesBackWhereItWas) {
    Input input;
    input.press("Right Home");
    for (const Point near : {Point{2000, 1000}, {2060, 1000}, {1964, 1048}}) { // the first, from wherever it was
        input.pointer.move(0, 0, near);
    }
    EXPECT_EQ(input.heard(), "");
    input.expectRing({200, 200}, false);
    input.pointer.move(0, 0, {2061, 1000});
    EXPECT_EQ(input.heard(), "move 0 0 2061,1000; ");
    EXPECT_EQ(input.pointer.ring(), std::nullopt);
    EXPECT_EQ(input.press("PageDown Space"), "move 0 0 200,200; down 1 0 200,200; ");
    input.expectRing({200, 200}, true);
    input.pointer.press(2, 1, {1000, 1000});
    EXPECT_EQ(input.press("Space Left F"), "up 1 0 200,200; down 2 1 1000,1000; ");
    EXPECT_EQ(input.pointer.ring(), std::nullopt); // the mouse holds a button
    input.pointer.release(2, 0, {1000, 1000});
    input.press("Space Space");
    input.pointer.move(0, 0, {2000, 1000});
    input.pointer.move(0, 0, {2900, 1000}); // and takes what Space holds along
    input.pointer.press(1, 0, {2900, 1000});
    EXPECT_EQ(input.heard(), "move 0 0 2900,1000; up 1 0 2900,1000; down 1 0 2900,1000; ");
    input.pointer.release(1, 0, {2900, 1000});
    input.press("Space Space");
    input.hand.letGo(); // as a desktop does when the window has gone
    input.expectRing({200, 200}, false);
}

// Cards lie on a real table; what the player does meanwhile goes elsewhere.
TEST(KeyboardPointerTest, WhatSpaceHoldsStaysHeldThroughEveryInterruption) {
    const auto space = [](Table& table) { table.pointer.key({PointerKey::Space}); };
    const auto busy = [&](Table& table) {
        for (const PointerKey key : {PointerKey::Space, PointerKey::End, PointerKey::F}) {
            EXPECT_TRUE(table.pointer.key({key}));
        }
        table.move({9000, 5000});
        table.move({1000, 1000});
        table.press({1000, 1000});
    };
    const std::vector<std::pair<std::string, std::function<void(Table&)>>> interruptions{
        {"to a button by Tab, and back", [](Table&) {}},
        {"a message box", [](Table& table) { table.program.table().cmdHelp.Click(); }},
        {"another window", [](Table& table) { table.program.table().cmdAbout.Click(); }},
        {"the hourglass", [&](Table& table) {
             table.program.table().MousePointer(Pointer::Hourglass);
             busy(table);
             table.program.table().MousePointer(Pointer::Default);
         }}};
    for (const auto& [what, interrupt] : interruptions) {
        SCOPED_TRACE(what);
        Table table;
        table.desktop.whileMessageIsOpen = [&] { busy(table); };
        table.desktop.whileModal = [&](Form& about) {
            busy(table);
            about.Unload();
        };
        table.lay(rkFive, suHeart, 4000, 2000);
        table.lay(rkSix, suHeart, 1000, 1000);
        space(table);
        space(table);
        table.pointer.key({PointerKey::Home});
        const auto carried = table.pointer.ring();
        table.painted();
        interrupt(table);
        EXPECT_EQ(table.painted(), "");
        EXPECT_TRUE(table.tracker().moveInProg());
        EXPECT_EQ(table.pointer.ring(), carried);
        space(table);
        EXPECT_EQ(table.label(), "Five of Hearts");
        EXPECT_EQ(table.pointer.ring(), (Ring{carried->at, false}));
        EXPECT_EQ(table.cards(), "SixHearts 1000,1000; FiveHearts 1000,1000");
    }
}

TEST(FingerTest, WhatATouchMeansShowsLater) {
    const std::string click = "down 1 0 500,500; up 1 0 500,500; ";
    const std::string rightClick = "down 2 0 500,500; up 2 0 500,500; ";
    const std::string drag = "down 1 0 500,500; move 1 0 590,620; ";
    const std::vector<std::pair<std::function<void(Finger&)>, std::string>> cases{
        {[](Finger& finger) {
             finger.move(1, {590, 619});
         },
         ""},
        {[](Finger& finger) {
             finger.lift(1, {590, 619});
         },
         click},
        {[](Finger& finger) {
             finger.move(1, {590, 620});
         },
         drag},
        {[](Finger& finger) { finger.longPress(); }, rightClick},
        {[](Finger& finger) { finger.cancel(); }, ""},
        {[](Finger& finger) {
             finger.longPress();
             finger.longPress();
             finger.move(1, {900, 900});
             finger.lift(1, {900, 900});
             finger.longPress();
         },
         rightClick},
        {[](Finger& finger) {
             finger.move(1, {590, 620});
             finger.longPress();
             finger.move(1, {500, 500});
             finger.lift(1, {510, 500});
         },
         drag + "move 1 0 500,500; up 1 0 510,500; "},
        {[](Finger& finger) {
             finger.move(1, {590, 620});
             finger.cancel();
             finger.lift(1, {900, 900});
         },
         drag + "up 1 0 590,620; "},
        {[](Finger& finger) { // a second one
             finger.touch(2, {100, 100}, 0);
             finger.move(2, {900, 900});
             finger.lift(1, {500, 500});
             finger.move(2, {100, 100});
             finger.longPress();
             finger.lift(2, {100, 100});
         },
         click},
        {[](Finger& finger) { // one after the other
             finger.lift(1, {500, 500});
             finger.touch(2, {500, 500}, 150);
             finger.move(2, {590, 620});
         },
         click + drag}};
    for (const auto& [then, heard] : cases) {
        Input input;
        input.finger.touch(1, {500, 500}, 150);
        EXPECT_EQ(input.heard(), "");
        then(input.finger);
        EXPECT_EQ(input.heard(), heard);
    }
    Input input;
    input.press("Space Space");
    input.finger.touch(1, {500, 500}, 150);
    input.expectRing({1500, 900}, true);
    input.finger.lift(1, {500, 500});
    EXPECT_EQ(input.heard(), "up 1 0 1500,900; " + click);
    EXPECT_EQ(input.pointer.ring(), std::nullopt);
}

} // namespace
} // namespace tumble
