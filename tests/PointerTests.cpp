#include "platform/paint/Picture.h"
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

DisplayItem block(const Rect& place, Colour colour = 0xFF0000) {
    return {.bounds = place, .operations = {FillOperation{place, colour}}};
}

TEST(StopsTest, AreTheMiddlesOfTheLargestRectanglesThatItemsLeaveToSee) {
    const Picture picture("card", {});
    const DisplayItem low = block({100, 100, 500, 500});
    const DisplayItem card{low.bounds, {PictureOperation{&picture, low.bounds}, BoxOperation{low.bounds, 0}}};
    const DisplayItem open{{150, 150, 450, 450}, {BoxOperation{{150, 150, 450, 450}, 0}}};
    const std::vector<std::tuple<std::vector<DisplayItem>, std::optional<KeyboardCursor>, std::vector<Point>>> cases{
        {{}, {}, {}},
        {{card, open}, {}, {{300, 300}}}, // an item that is not opaque hides nothing and is no stop
        {{low, block({200, 0, 600, 600})}, {}, {{149, 300}, {400, 300}}},
        {{low, block({200, 220, 600, 600})}, {}, {{300, 159}, {400, 410}}}, // the larger leg of an L
        {{low, block({220, 0, 300, 600}), block({0, 200, 600, 300})}, {}, {{400, 400}, {260, 450}, {300, 250}}},
        {{low, block({99.5F, 100, 500.5F, 500})}, {}, {{300, 300}}}, // the lower item is hidden
        {{low, block({101.5F, 0, 600, 600})}, {}, {{100, 300}, {351, 300}}},
        {{low, block({100.5F, 0, 600, 600})}, {}, {{350, 300}}},          // less than a whole twip shows
        {{low, block({200, 0, 600, 600}, tableGreen)}, {}, {{149, 300}}}, // an erasure hides and is no stop
        {{low, block({200, 200, 400, 400}), block({50, 50, 150, 550})}, {}, {{450, 300}, {300, 300}, {100, 300}}},
        {{block({0, 0, 400, 400}), block({100, 120, 300, 300})}, {}, {{200, 59}, {200, 210}}},
        {{block({0, 0, 400, 1000}), block({0, 0, 400, 300}), block({0, 700, 400, 1000})},
         {},
         {{200, 500}, {200, 150}, {200, 850}}},
        {{block({-500, -500, 40, 40}), block({2900, 1900, 3500, 2500}), block({2981, 1981, 3500, 2500})},
         {},
         {{20, 20}, {2940, 1940}}}, // inside the given part only
        {{low, block({200, 0, 600, 600})}, KeyboardCursor{{120, 300}}, {{400, 300}}},
        {{low, block({200, 0, 600, 600})}, KeyboardCursor{{400, 300}}, {{149, 300}}},
        {{low, block({200, 0, 600, 600})}, KeyboardCursor{{400, 300}, true}, {{300, 300}}}, // a carried item hides none
        {{low, block({200, 0, 600, 600}, tableGreen)}, KeyboardCursor{{400, 300}, true}, {{149, 300}}}};
    for (const auto& [items, cursor, expected] : cases) {
        DisplayList list(3000, 2000, tableGreen);
        for (const DisplayItem& item : items) {
            list.add(item);
        }
        EXPECT_EQ(stops(list, {0, 0, 2980, 1980}, cursor), expected) << inWords(items);
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
        using Way = std::pair<std::size_t, std::size_t>;
        std::vector<Way> ways;
        for (std::size_t from = 0; from < all.size(); ++from) {
            on.insert(table.tracker().identifyCard(all[from].x, all[from].y).get());
            const std::vector<Point> others = stops(box.displayList(), box.dragBounds, KeyboardCursor{all[from]});
            for (const Point arrow : {Point{-1, 0}, {0, -1}, {1, 0}, {0, 1}}) {
                if (const auto next = stopTowards(others, all[from], arrow)) {
                    ways.emplace_back(from, std::find(all.begin(), all.end(), *next) - all.begin());
                }
            }
        }
        const auto reached = [&](std::size_t Way::*from, std::size_t Way::*to) {
            std::set<std::size_t> found{0};
            for (std::size_t before = 0; before != found.size();) {
                before = found.size();
                for (const Way& way : ways) {
                    if (found.contains(way.*from)) {
                        found.insert(way.*to);
                    }
                }
            }
            return found.size();
        };
        const auto cards = static_cast<std::size_t>(settings.layout == 1 ? 1 : cardsOfDeck.at(settings.deck));
        EXPECT_TRUE(all.size() == cards + 4 && on.size() == all.size() && !on.contains(nullptr)) << all.size();
        EXPECT_EQ(reached(&Way::first, &Way::second), all.size());
        EXPECT_EQ(reached(&Way::second, &Way::first), all.size());
    }
}

/// A box with six blocks, which records its mouse events: "down 1 0 200,100" with button and shift keys.
class Blocks : public Form {
public:
    Blocks() : Form("Blocks", 3000, 2000) {
        for (const Point middle : {Point{200, 200}, {1100, 200}, {2700, 200}, {200, 1600}, {2700, 1600}, {1500, 900}}) {
            const Rect place = Rect{middle.x, middle.y, middle.x, middle.y}.expanded(100);
            box.Paint(place).Line(place, 0, BoxFill::Filled);
        }
        box.dragBounds = {0, 0, 2929, 1929};
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

/// The box with its keyboard pointer and touch gesture.
class Desk {
public:
    /// Plays a script: keys, "Shift+Left held+Space"; the mouse, "press 1 200 100" with the button; a finger,
    /// "touch 1 200 100" with its number. Returns the keys that the pointer did not take, the box's events, and the
    /// cursor.
    std::string act(const std::string& script) {
        std::istringstream words(script);
        std::string told;
        for (std::string word; words >> word;) {
            const auto place = places_.find(word);
            if (place != places_.end()) {
                std::int16_t number = 0;
                Point at;
                words >> number >> at.x >> at.y;
                place->second(number, at);
            } else if (word == "box") {
                MsgBox("text");
                capture.inputUnblocked();
            } else if (word == "longPress" || word == "cancel") {
                gesture_.handle(word == "cancel" ? TouchEvent::Cancel : TouchEvent::LongPress, 0, {}, 0);
            } else if (!key(word)) {
                told += word + " ";
            }
        }
        told += std::exchange(form.heard, "");
        if (const auto cursor = pointer_.cursor()) {
            std::ostringstream text;
            text << (cursor->holds ? "holds " : "ring ") << cursor->at.x << "," << cursor->at.y;
            told += text.str();
        }
        return told;
    }

    MemoryDesktop desktop{application()};
    Blocks form;
    MouseCapture capture{form.box};

private:
    bool key(const std::string& word) {
        static const std::vector<std::string> names{"Left", "Up",       "Right", "Down", "Home", "PageUp",
                                                    "End",  "PageDown", "Space", "F",    "Menu", "F10"};
        const auto name = std::find(names.begin(), names.end(), word.substr(word.rfind('+') + 1));
        const auto with = [&](const char* prefix, int held = 1) {
            return word.find(prefix) != std::string::npos ? held : 0;
        };
        const int Shift = with("Shift+", 1) + with("Ctrl+", 2) + with("Alt+", 4) + with("Meta+", 8);
        return pointer_.key({.key = static_cast<Key>(name - names.begin()),
                             .Shift = static_cast<std::int16_t>(Shift),
                             .repeated = with("held+") != 0});
    }

    KeyboardPointer pointer_{capture};
    TouchGesture gesture_{pointer_};
    const std::map<std::string, std::function<void(std::int16_t, Point)>> places_{
        {"press", [this](auto button, Point at) { pointer_.press(button, 0, at); }},
        {"move", [this](auto button, Point at) { pointer_.move(button, 0, at); }},
        {"release", [this](auto button, Point at) { pointer_.release(button, 0, at); }},
        {"touch", [this](auto number, Point at) { gesture_.handle(TouchEvent::Begin, number, at, 150); }},
        {"drag", [this](auto number, Point at) { gesture_.handle(TouchEvent::Move, number, at, 150); }},
        {"lift", [this](auto number, Point at) { gesture_.handle(TouchEvent::End, number, at, 150); }}};
};

TEST(KeyboardPointerTest, EachKeyDoesItsOwnAndTheFirstOnlyShowsThePointer) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"Left", "move 0 0 200,200; ring 200,200"},
        {"Up", "move 0 0 1100,200; ring 1100,200"},
        {"Right", "move 0 0 2700,200; ring 2700,200"},
        {"Down", "ring 1500,900"},
        {"Home Shift+Home", "move 0 0 200,200; ring 200,200"}, // no second move
        {"PageUp", "move 0 0 2700,200; ring 2700,200"},
        {"End held+Right", "move 0 0 200,1600; move 0 0 1500,900; ring 1500,900"},
        {"PageDown", "move 0 0 2700,1600; ring 2700,1600"},
        {"Shift+Left held+Shift+Up", "move 0 1 1350,900; move 0 1 1350,750; ring 1350,750"},
        {"Ctrl+Shift+Right held+Ctrl+Shift+Down", "move 0 3 1515,900; move 0 3 1515,915; ring 1515,915"},
        {"PageDown Shift+Right Shift+Right Shift+Right",
         "move 0 0 2700,1600; move 0 1 2850,1600; move 0 1 2929,1600; ring 2929,1600"},
        {"Space held+Space Home", "down 1 0 1500,900; move 1 0 200,200; holds 200,200"},
        {"Space Space held+Space", "down 1 0 1500,900; up 1 0 1500,900; move 0 0 1500,900; ring 1500,900"},
        {"F held+F", "down 2 0 1500,900; up 2 0 1500,900; ring 1500,900"},
        {"Menu held+Menu", "down 2 0 1500,900; up 2 0 1500,900; ring 1500,900"},
        {"Shift+F10 held+Shift+F10", "down 2 1 1500,900; up 2 1 1500,900; ring 1500,900"},
        {"Space F", "down 1 0 1500,900; down 2 0 1500,900; up 2 0 1500,900; up 1 0 1500,900; move 0 0 1500,900; "
                    "ring 1500,900"}};
    const std::string others =
        "F10 Ctrl+F Alt+F Meta+F Ctrl+Space Alt+Menu Ctrl+Left Alt+Shift+Up Meta+Down Ctrl+Home ";
    for (const auto& [keys, told] : cases) {
        Desk desk;
        EXPECT_EQ(desk.act(others), others);
        EXPECT_EQ(desk.act("held+Right"), "move 0 0 1500,900; ring 1500,900");
        EXPECT_EQ(desk.act(keys), told) << keys;
    }
    Desk desk;
    desk.form.box.Cls(); // which leaves no stop
    EXPECT_EQ(desk.act("Space Left Home Space"), "move 0 0 1464,964; down 1 0 1464,964; holds 1464,964");
    desk.capture.releaseAll();
    EXPECT_EQ(desk.act("End"), "up 1 0 1464,964; ring 1464,964");
}

TEST(KeyboardPointerTest, HidesWhenTheMouseMovesFarOrPressesAndReturnsToItsPlace) {
    Desk desk;
    const std::vector<std::pair<std::string, std::string>> steps{
        {"Right Home", "move 0 0 1500,900; move 0 0 200,200; ring 200,200"},
        {"move 0 2000 1000 move 0 2060 1000 move 0 1964 1048", "ring 200,200"}, // the first may be far
        {"move 0 2061 1000", "move 0 0 2061,1000; "},
        {"PageDown Space", "move 0 0 200,200; down 1 0 200,200; holds 200,200"},
        {"press 2 1000 1000", "up 1 0 200,200; down 2 0 1000,1000; "},
        {"Space Left F", ""}, // the mouse holds a button, so keys do nothing
        {"release 2 1000 1000 Space Space", "up 2 0 1000,1000; move 0 0 200,200; down 1 0 200,200; holds 200,200"},
        {"move 0 900 1000", "holds 200,200"},
        {"move 0 2900 1000", "move 1 0 2900,1000; "}, // the held card follows the mouse
        {"press 1 2900 1000", "up 1 0 2900,1000; down 1 0 2900,1000; "}};
    for (const auto& [script, told] : steps) {
        EXPECT_EQ(desk.act(script), told) << script;
    }
}

TEST(KeyboardPointerTest, WhatSpaceHoldsStaysHeldThroughEveryInterruption) {
    using Interruption = std::function<void(Desk&)>;
    const std::string meanwhile = "Space End F move 0 900 100 move 0 100 900 press 1 100 900 release 1 100 900";
    for (const Interruption& interrupt : {Interruption([](Desk&) { MsgBox("text"); }), Interruption([](Desk&) {
                                              Form("another window", 100, 100).Show(Modality::Modal);
                                          }),
                                          Interruption([&](Desk& desk) {
                                              desk.form.MousePointer(Pointer::Hourglass);
                                              desk.act(meanwhile);
                                              desk.form.MousePointer(Pointer::Default);
                                          })}) {
        Desk desk;
        desk.desktop.whileMessageIsOpen = [&] { desk.act(meanwhile); };
        desk.desktop.whileModal = [&](Form&) { desk.act(meanwhile); };
        EXPECT_EQ(desk.act("Space Space Home"),
                  "move 0 0 1500,900; down 1 0 1500,900; move 1 0 200,200; holds 200,200");
        interrupt(desk);
        EXPECT_EQ(desk.act("Space"), "up 1 0 200,200; move 0 0 200,200; ring 200,200");
    }
}

TEST(MouseCaptureTest, AMoveWithAHeldButtonUpReleasesItWhereItWasLastUnlessTheFormWasBlocked) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"move 1 600 600 move 0 900 900", "move 1 0 600,600; up 1 0 600,600; move 0 0 900,900; "},
        {"press 2 600 600 move 1 700 700", "down 2 0 600,600; up 2 0 600,600; move 1 0 700,700; "},
        {"box move 0 900 900 release 1 900 900 move 0 1 1", "move 0 0 900,900; up 1 0 900,900; move 0 0 1,1; "},
        {"box move 1 700 700 move 0 900 900", "move 1 0 700,700; up 1 0 700,700; move 0 0 900,900; "}};
    for (const auto& [script, told] : cases) {
        Desk desk;
        EXPECT_EQ(desk.act("press 1 500 500"), "down 1 0 500,500; ");
        EXPECT_EQ(desk.act(script), told) << script;
    }
}

TEST(TouchGestureTest, MeaningOfATouchShowsLater) {
    const std::string click = "down 1 0 500,500; up 1 0 500,500; ";
    const std::string rightClick = "down 2 0 500,500; up 2 0 500,500; ";
    const std::string drag = "down 1 0 500,500; move 1 0 590,620; ";
    const std::vector<std::pair<std::string, std::string>> cases{
        {"drag 1 590 619", ""},
        {"lift 1 590 619", click},
        {"drag 1 590 620", drag},
        {"drag 1 590 620 longPress drag 1 500 500 lift 1 510 500", drag + "move 1 0 500,500; up 1 0 510,500; "},
        {"longPress longPress drag 1 900 900 lift 1 900 900 longPress", rightClick},
        {"drag 1 590 620 cancel lift 1 900 900", drag + "up 1 0 590,620; "},
        {"cancel touch 2 500 500 lift 2 500 500", click},
        {"touch 2 100 100 drag 2 900 900 lift 1 500 500 drag 2 100 100 longPress lift 2 100 100", click},
        {"lift 1 500 500 touch 2 500 500 drag 2 590 620", click + drag}};
    for (const auto& [script, told] : cases) {
        Desk desk;
        EXPECT_EQ(desk.act("touch 1 500 500"), "");
        EXPECT_EQ(desk.act(script), told) << script;
    }
    Desk desk;
    EXPECT_EQ(desk.act("Space Space touch 1 500 500 lift 1 500 500"),
              "move 0 0 1500,900; down 1 0 1500,900; up 1 0 1500,900; " + click);
}

} // namespace
} // namespace tumble
