#include "platform/web/ControlKeys.h"
#include "platform/web/TextLayout.h"
#include "platform/window/Captions.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <list>
#include <optional>
#include <sstream>
#include <string>
#include <tuple>

namespace tumble {
namespace {

const FormSize tableSize(9525, 6630); // 635 x 442

TEST(LayoutTest, AFormIsAsLargeAsFitsInTheMiddleOfItsWindow) {
    using Case = std::tuple<PixelSize, double, double, PixelRect, PixelRect>;
    for (const auto& [window, ratio, scale, content, picTable] :
         {Case{{635, 442}, 1, 1, {0, 0, 634, 441}, {16, 8, 616, 408}},
          Case{{953, 32000}, 1.25, 953 / 635.0, {0, 15669, 952, 16331}, {24, 12, 924, 612}},
          Case{{500, 174}, 3, 174 / 442.0, {125, 0, 374, 173}, {6, 3, 241, 160}},
          Case{{1, 1}, 1, 0.75, {-238, -166, 237, 165}, {12, 6, 461, 305}},
          Case{{32000, 32000}, 2, 8, {13460, 14232, 18539, 17767}, {128, 64, 4935, 3271}}}) {
        const Layout layout = layoutOf(tableSize, window, ratio);
        EXPECT_NEAR(layout.scale, scale, 1e-9);
        EXPECT_EQ(layout.content, content) << window.width;
        EXPECT_EQ(layout.pixels({240, 120, 9015, 6015}), picTable) << window.width;
    }
}

TEST(LayoutTest, AChoiceMayUseHalfOfTheSpaceAboveAndBelowAndSomeOnItsRight) {
    const MemoryDesktop desktop(application());
    Form form("", 2000, 3000);
    const PictureBox beside(form, "", "", {1200, 0, 700, 1600}, 0, windowColour);
    const OptionButton first(form, "", "", {100, 500, 1000, 300}, 0, {});
    const OptionButton second(form, "", "", {100, 1000, 1090, 300}, 0, {});
    const OptionButton third(form, "", "", {100, 1300, 500, 300}, 0, {}); // touches the second
    const OptionButton fourth(form, "", "", {100, 2500, 1800, 300}, 0, {});
    EXPECT_EQ(allottedPlace(first), (Place{100, 400, 1055, 500}));
    EXPECT_EQ(allottedPlace(second), (Place{100, 1000, 1090, 300}));
    EXPECT_EQ(allottedPlace(third), (Place{100, 1300, 740, 300}));
    EXPECT_EQ(allottedPlace(fourth), (Place{100, 2350, 1855, 600}));
}

/// A made-up font: a letter is as many pixels wide as the font has points, a line twice as high, broken anywhere.
TextSize measureLetters(const std::string& text, const CaptionFont& font, std::optional<int> width) {
    const double inOneLine = static_cast<double>(text.size()) * font.points * font.stretch / 100;
    const double most = width.value_or(1000);
    const auto line = static_cast<int>(std::ceil(font.points * 2));
    return {static_cast<int>(std::ceil(std::min(inOneLine, most))),
            static_cast<int>(std::ceil(inOneLine / most)) * line, line};
}

/// Gives a caption a size of its own and notes its font.
class NotingView : public ControlView {
public:
    NotingView(const Control& control, PixelSize size, std::ostream& fonts)
        : control_(control), size_(size), fonts_(fonts) {}
    void place(const PixelRect& /*pixels*/) override {}
    void update(double /*scale*/) override {}
    PixelSize captionSize(PixelSize /*usual*/) const override { return size_; }
    void setFont(const CaptionFont& font) override {
        fonts_ << control_.Name() << " " << font.points << (font.bold ? " bold " : " ") << font.stretch << "%; ";
    }

private:
    const Control& control_;
    PixelSize size_;
    std::ostream& fonts_;
};

class CaptionsTest : public testing::Test {
protected:
    void add(const auto& control, PixelSize size) {
        captions.add(control, captionStyle(control), {}, views.emplace_back(control, size, fonts));
    }

    MemoryDesktop desktop{application()};
    Form form{"", 6000, 6000};
    Frame frame{form, "frame", "a", {}, 0, {.bold = true}};
    Captions captions{measureLetters};
    std::list<NotingView> views;
    std::ostringstream fonts;
};

TEST_F(CaptionsTest, HaveTheFontAskedForOrTheLargestThatFits) {
    const Label low(form, "low", "ninechars", {0, 0, 900, 585}, 0);
    const Label high(form, "high", "ninechars", {0, 0, 900, 600}, 0, {.points = 10});
    const OptionButton option(form, "option", "ninechars", {}, 0, {});
    using Case = std::tuple<double, PixelSize, std::string>;
    for (const auto& [scale, size, expected] : {Case{1, {75, 60}, "low 8.25 100%; high 10 100%; option 8.25 100%; "},
                                                Case{1, {74, 16}, "low 8 100%; high 8 100%; option 8 100%; "},
                                                Case{1, {44, 60}, "low 6.5 75%; high 10 100%; option 8.25 100%; "},
                                                Case{1, {35, 60}, "low 6.5 65%; high 10 100%; option 7.75 100%; "},
                                                Case{2, {1, 1}, "low 13 65%; high 13 65%; option 13 65%; "}}) {
        captions.clear();
        fonts.str({});
        add(low, size);
        add(high, size);
        add(option, size);
        captions.fit(Layout{.scale = scale});
        EXPECT_EQ(fonts.str(), expected);
    }
}

TEST_F(CaptionsTest, ThatAreAlikeInOneContainerHaveOneSize) {
    const OptionButton first(frame, "first", "ninechars", {}, 0, {});
    OptionButton second(frame, "second", "with nineteen chars", {}, 0, {});
    const OptionButton other(form, "other", "ninechars", {}, 0, {});
    add(frame, {75, 34});
    add(first, {75, 34});
    add(other, {75, 34});
    add(second, {75, 34});
    captions.fit(Layout());
    EXPECT_EQ(fonts.str(), "frame 8.25 bold 100%; first 7.75 100%; second 7.75 100%; other 8.25 100%; ");
    fonts.str({});
    second.Caption("short");
    captions.fit(second, Layout());
    EXPECT_EQ(fonts.str(), "first 8.25 100%; second 8.25 100%; ");
}

TEST(TextSizeTest, AsManyWordsGoIntoALineAsFit) {
    using Case = std::tuple<std::string, std::optional<int>, int, int>;
    for (const auto& [text, width, widest, lines] :
         {Case{"", 3, 0, 1}, Case{"aa bb cc", {}, 8, 1}, Case{"aa\nbb cc", {}, 5, 2}, Case{"aa bb cc", 8, 8, 1},
          Case{"aa bb cc", 7, 5, 2}, Case{"aa bb\ncc d", 5, 5, 2}, Case{"aa bb cc", 4, 2, 3},
          Case{"aa bbbbbb c", 4, 6, 3}}) {
        const auto letters = [](const std::string& piece) { return static_cast<double>(piece.size()); };
        const TextSize size = textSize(text, letters, 10, width);
        EXPECT_EQ(std::tuple(size.width, size.height, size.lineSpacing), std::tuple(widest, 10 * lines, 10)) << text;
    }
}

TEST(KeysTest, LeadFromChoiceToChoiceAndFromValueToValue) {
    const MemoryDesktop desktop(application());
    frmTumbleOptions options([](auto...) {});
    OptionButton* focused = &options.optCardNormal;
    for (const auto& [key, choice] : {std::pair(Key::Up, &options.optCardMedium),
                                      {Key::Left, &options.optCardSmall},
                                      {Key::Up, &options.optCardSmall},
                                      {Key::Down, &options.optCardMedium},
                                      {Key::Right, &options.optCardNormal},
                                      {Key::Down, &options.optCardNormal}}) {
        EXPECT_EQ(press(focused, key), AnyControl(choice));
        EXPECT_TRUE(choice->Value());
        focused = choice;
    }
    Slider& slider = options.sldBackDesign;
    for (const auto& [key, value] :
         {std::pair(Key::Down, 2), {Key::End, 4}, {Key::Right, 4}, {Key::Up, 3}, {Key::Home, 1}, {Key::PageUp, 1}}) {
        EXPECT_EQ(press(&slider, key), AnyControl(&slider));
        EXPECT_EQ(slider.Value(), value);
    }
    EXPECT_EQ(press(&slider, Key::F), std::nullopt);
    EXPECT_EQ(press(&options.cmdPlay, Key::Down), std::nullopt);
}

TEST(KeysTest, PressTheButtonOfTheFormThatHasThem) {
    const MemoryDesktop desktop(application());
    Form form("", 6000, 6000);
    Frame frame(form, "frame", "", {}, 0, {});
    std::string pressed;
    const CommandButton none(form, "none", "&none", {}, 0, [&] { pressed += "none "; });
    const CommandButton inFrame(frame, "inFrame", "in &frame", {}, 0, [&] { pressed += "in frame "; },
                                {Key::Esc, Key::Enter});
    const CommandButton onForm(form, "onForm", "on form", {}, 0, [&] { pressed += "on form "; }, {Key::F11});
    for (const Key key : {Key::Enter, Key::Esc, Key::F11}) {
        form.press(key);
    }
    EXPECT_TRUE(form.pressAccessKey('N') && form.pressAccessKey('F'));
    EXPECT_FALSE(form.pressAccessKey('O'));
    EXPECT_EQ(pressed, "in frame in frame on form none in frame ");
}

} // namespace
} // namespace tumble
