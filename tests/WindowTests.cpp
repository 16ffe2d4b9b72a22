#include "platform/Captions.h"
#include "platform/ScreenRoom.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <tuple>

namespace tumble {
namespace {

std::string inNumbers(const Place& place) {
    std::ostringstream text;
    text << place.Left << "," << place.Top << " " << place.Width << "x" << place.Height;
    return text.str();
}

std::string inNumbers(const PixelRect& rect) {
    return inNumbers(Place{static_cast<float>(rect.left), static_cast<float>(rect.top),
                           static_cast<float>(rect.width()), static_cast<float>(rect.height())});
}

const FormSize tableSize(9525, 6630); // 635 x 442

TEST(LayoutTest, AFormIsAsLargeAsFitsInTheMiddleOfItsWindow) {
    using Case = std::tuple<PixelSize, double, double, std::string, std::string>;
    for (const auto& [window, ratio, scale, content, picTable] :
         {Case{{635, 442}, 1, 1, "0,0 635x442", "16,8 601x401"},
          Case{{1371, 884}, 1, 2, "51,0 1270x884", "32,16 1202x802"},
          Case{{953, 32000}, 1.25, 953 / 635.0, "0,15669 953x663", "24,12 901x601"},
          Case{{250, 500}, 3, 250 / 635.0, "0,163 250x174", "6,3 236x158"},
          Case{{1, 1}, 1, 0.75, "-238,-166 476x332", "12,6 450x300"},
          Case{{32000, 32000}, 2, 8, "13460,14232 5080x3536", "128,64 4808x3208"}}) {
        const Layout layout = layoutOf(tableSize, window, ratio);
        EXPECT_NEAR(layout.scale, scale, 1e-9);
        EXPECT_EQ(inNumbers(layout.content), content);
        EXPECT_EQ(inNumbers(layout.pixels({240, 120, 9015, 6015})), picTable);
    }
}

TEST(LayoutTest, AChoiceMayUseHalfOfTheSpaceAboveAndBelowAndSomeOnItsRight) {
    const MemoryDesktop desktop(application());
    const frmTumbleOptions options({});
    EXPECT_EQ(inNumbers(roomOf(options.optNaturalOrder)), "240,187.5 1575x480"); // as far right as any
    EXPECT_EQ(inNumbers(roomOf(options.optByRankSuitAsc)), "240,1147.5 1770x480");
    EXPECT_EQ(inNumbers(roomOf(options.optCardNormal)), "240,960 1035x495"); // touched from above
    EXPECT_EQ(inNumbers(roomOf(options.optDeck36Card)), "240,720 1995x255");
}

TEST(ScreenRoomTest, TheTableOpensAsLargeAsLooksWellAndLiesInsideTheScreen) {
    using Case = std::tuple<PixelSize, double, double>;
    for (const auto& [screen, ratio, scale] :
         {Case{{800, 600}, 1, 1}, Case{{800, 480}, 1, 1}, Case{{1366, 768}, 1, 1.375}, Case{{3840, 2160}, 1, 3.875},
          Case{{1920, 1080}, 2, 1.875}, Case{{683, 384}, 2, 348 / 442.0}, Case{{640, 360}, 3, 324 / 442.0},
          Case{{600, 1024}, 1, 592 / 635.0}, Case{{400, 300}, 1, 0.75}}) {
        const PixelRect all{.left = 100, .top = -50, .right = 99 + screen.width, .bottom = screen.height - 51};
        const ScreenRoom room(all, screen, ratio, {}); // with a usual frame
        EXPECT_NEAR(room.openingScale(tableSize), scale, 1e-9) << screen.width;
        EXPECT_NEAR(room.leastScale(tableSize), std::min(scale, 1.0), 1e-9) << screen.width;
        const PixelRect place = room.place(tableSize.at(scale), room.inside());
        EXPECT_TRUE(place.left >= 104 && place.top >= -18) << screen.width;
        EXPECT_TRUE(scale == 0.75 || (place.right <= all.right - 4 && place.bottom <= all.bottom - 4)) << screen.width;
    }
    const ScreenRoom room({.left = 0, .top = 0, .right = 799, .bottom = 559}, {800, 600}, 1, WindowFrame{});
    const PixelRect around{.left = 700, .top = 300, .right = 799, .bottom = 599};
    EXPECT_EQ(inNumbers(room.place({50, 50}, around)), "725,425 50x50");
    EXPECT_EQ(inNumbers(room.place({300, 300}, around)), "500,260 300x300");
}

/// A made-up font: a letter is as many pixels wide as the font has points, a line twice as high, broken anywhere.
TextSize measureLetters(const std::string& text, const CaptionFont& font, std::optional<int> width) {
    const double inOneLine = static_cast<double>(text.size()) * font.points * font.stretch / 100;
    const double most = width.value_or(1000);
    const auto line = static_cast<int>(std::ceil(font.points * 2));
    return {static_cast<int>(std::ceil(std::min(inOneLine, most))),
            static_cast<int>(std::ceil(inOneLine / most)) * line, line};
}

class CaptionsTest : public testing::Test {
protected:
    void add(const auto& control, PixelSize room) {
        captions.add(
            control, captionStyle(control), [room] { return room; },
            [this, &control](const CaptionFont& font) {
                std::ostringstream text;
                text << font.points << (font.bold ? " bold " : " ") << font.stretch << "%";
                fonts[control.Name()] = text.str();
            });
    }

    using Fonts = std::map<std::string, std::string>;
    MemoryDesktop desktop{application()};
    Form form{"", 6000, 6000};
    Frame frame{form, "frame", "a", {}, 0, {.bold = true}};
    Captions captions{measureLetters};
    Fonts fonts;
};

TEST_F(CaptionsTest, HaveTheFontAskedForOrTheLargestThatFits) {
    const Label low(form, "low", "ninechars", {0, 0, 900, 585}, 0);
    const Label high(form, "high", "ninechars", {0, 0, 900, 600}, 0, {.points = 10});
    const OptionButton option(form, "option", "ninechars", {}, 0, {});
    using Case = std::tuple<double, PixelSize, std::string, std::string, std::string>;
    for (const auto& [scale, room, inLow, inHigh, inOption] :
         {Case{1, {75, 60}, "8.25 100%", "10 100%", "8.25 100%"}, Case{1, {74, 16}, "8 100%", "8 100%", "8 100%"},
          Case{1, {44, 60}, "6.5 75%", "10 100%", "8.25 100%"}, Case{1, {35, 60}, "6.5 65%", "10 100%", "7.75 100%"},
          Case{2, {1, 1}, "13 65%", "13 65%", "13 65%"}}) {
        captions.clear();
        add(low, room);
        add(high, room);
        add(option, room);
        captions.fit(scale);
        EXPECT_EQ(fonts, (Fonts{{"low", inLow}, {"high", inHigh}, {"option", inOption}})) << room.width;
    }
}

TEST_F(CaptionsTest, ThatAreAlikeInOneContainerHaveOneSize) {
    OptionButton first(frame, "first", "ninechars", {}, 0, {});
    OptionButton second(frame, "second", "with nineteen chars", {}, 0, {});
    const OptionButton other(form, "other", "ninechars", {}, 0, {});
    add(frame, {75, 34});
    add(first, {75, 34});
    add(second, {75, 34});
    add(other, {75, 34});
    captions.fit(1);
    EXPECT_EQ(
        fonts,
        (Fonts{{"frame", "8.25 bold 100%"}, {"first", "7.75 100%"}, {"second", "7.75 100%"}, {"other", "8.25 100%"}}));
    fonts.clear();
    second.Caption("short");
    captions.fit(second, 1);
    EXPECT_EQ(fonts, (Fonts{{"first", "8.25 100%"}, {"second", "8.25 100%"}}));
}

TEST(KeysTest, AHeldKeyActsOnce) {
    HeldKeys held;
    EXPECT_FALSE(held.repeats(Key::Enter, 10, false));
    EXPECT_TRUE(held.repeats(Key::Enter, 20, true));
    held.released(Key::Enter, 30);
    EXPECT_TRUE(held.repeats(Key::Enter, 30, false));
    EXPECT_FALSE(held.repeats(Key::Esc, 30, false));
    EXPECT_FALSE(held.repeats(Key::Enter, 31, false));
    held.released(Key::Enter, 0); // while a screen reader listens
    EXPECT_FALSE(held.repeats(Key::Enter, 0, false));
}

TEST(KeysTest, PressTheButtonOfTheFormThatHasThem) {
    const MemoryDesktop desktop(application());
    Form form("", 6000, 6000);
    Frame frame(form, "frame", "", {}, 0, {});
    std::string pressed;
    const CommandButton none(form, "none", "", {}, 0, [&] { pressed += "none "; });
    const CommandButton inFrame(frame, "inFrame", "", {}, 0, [&] { pressed += "in frame "; }, {Key::Esc, Key::Enter});
    const CommandButton onForm(form, "onForm", "", {}, 0, [&] { pressed += "on form "; }, {Key::F11});
    for (const Key key : {Key::Enter, Key::Esc, Key::F11}) {
        form.press(key);
    }
    EXPECT_EQ(pressed, "in frame in frame on form ");
}

} // namespace
} // namespace tumble
