#include "tests/Table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <sstream>
#include <utility>

namespace tumble {
namespace {

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
