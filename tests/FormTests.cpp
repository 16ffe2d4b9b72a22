#include "game/frmAbout.h"
#include "platform/Picture.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <sstream>
#include <tuple>
#include <variant>

namespace tumble {
namespace {

/// Notes which controls the desktop was told to show anew.
class WatchfulDesktop : public MemoryDesktop {
public:
    WatchfulDesktop() : MemoryDesktop(application()) {}
    void changed(Control& control) override { changes += control.Name() + " "; }
    std::string changes;
};

class TestForm : public Form {
public:
    TestForm() : Form("Test", 3000, 2000) {}
    void Form_Load() override { ++loads; }

    int loads = 0;
    std::string events;
    OptionButton one{*this, "one", "", {}, 0, [this] { events += "one "; }, "", Choice::Selected};
    OptionButton two{*this, "two", "", {}, 1, [this] { events += "two "; }};
    Frame frame{*this, "frame", "", {}, 2, {}};
    OptionButton inFrame{frame, "inFrame", "", {}, 3, [this] { events += "inFrame "; }};
    Slider slider{*this, "slider", "", {}, 4, 0, 4, [this] { events += std::to_string(slider.Value()); }};
};

TEST(OptionButtonTest, SelectingDeselectsTheOthersOfItsContainerAndClicksOnce) {
    WatchfulDesktop desktop;
    TestForm form;
    form.inFrame.Select();
    EXPECT_TRUE(form.one.Value());
    form.two.Select();
    form.two.Select();
    EXPECT_TRUE(!form.one.Value() && form.two.Value() && form.inFrame.Value());
    form.frame.Caption("New");
    EXPECT_EQ(form.events, "inFrame two ");
    EXPECT_EQ(desktop.changes, "inFrame one two frame ");
}

TEST(SliderTest, StaysInItsRangeAndTellsOfEachNewValue) {
    WatchfulDesktop desktop;
    TestForm form;
    Slider& slider = form.slider;
    for (const int value : {9, 4, -1, 3}) {
        slider.Value(value);
    }
    slider.Max(2);
    EXPECT_EQ(slider.Value(), 2);
    slider.Max(6);
    slider.Min(5);
    EXPECT_EQ(form.events, "40325");
    EXPECT_EQ(desktop.changes, "slider slider slider slider slider slider slider slider ");
    EXPECT_EQ(slider.Min() + 10 * slider.Max(), 65);
}

TEST(FormTest, LoadsWhenShownAndAfreshOnceUnloaded) {
    MemoryDesktop desktop(application());
    {
        TestForm form;
        form.Unload();
        form.Show();
        form.Hide();
        form.Show();
        EXPECT_EQ(form.loads, 1);
        form.Form_Close();
        form.Show();
        EXPECT_EQ(form.loads, 2);
    }
    const std::vector<std::string> asked{"show Test",   "hide Test", "show Test",
                                         "unload Test", "show Test", "unload Test"};
    EXPECT_EQ(desktop.journal(), asked);
}

/// The controls with their tab positions, captions, keys or choices, and places; those of a frame follow it.
std::string inWords(const Container& container) {
    std::ostringstream text;
    const auto describe = [&](const auto* control) {
        const auto& [left, top, width, height] = control->place();
        text << control->TabIndex() << " " << control->Caption() << " ";
        if constexpr (requires { control->keys; }) {
            text << (control->pressedByEnter() ? "Enter " : "") << (control->pressedByEsc() ? "Esc " : "");
        } else if constexpr (requires { control->Tag(); }) {
            text << (control->Value() ? "on " : "") << control->Tag() << (control->Tag().empty() ? "" : " ");
        }
        text << left << "," << top << "," << width << "," << height << "; ";
        if constexpr (requires { control->controls(); }) {
            text << inWords(*control);
        }
    };
    for (const AnyControl& any : container.controls()) {
        std::visit(describe, any);
    }
    return text.str();
}

TEST(FormTest, ControlsLieWhereTheyWereDesigned) {
    MemoryDesktop desktop(application());
    MainMod program;
    EXPECT_EQ(inWords(program.table()), "0 Table 240,120,9015,6015; 4 Current Card: 240,6240,1215,375; "
                                        "5  1560,6240,2775,255; 3 &About 7200,6240,615,375; "
                                        "2 &Help 7920,6240,615,375; 1 E&xit Enter 8640,6240,615,375; ");
    EXPECT_EQ(inWords(frmAbout()), "1 Icon 240,240,540,540; 2 Tumble 1050,240,1245,480; "
                                   "3 Version 1.0 1050,780,1365,225; 4 \u00A9 2026 Tumble 1080,1200,1455,435; "
                                   "0 OK Enter Esc 3120,1440,1260,345; ");
    EXPECT_EQ(
        inWords(program.options()),
        "0 &Play Enter 6360,4200,2055,855; 1 E&xit Esc 6360,3720,2055,375; "
        "2 Card Size 120,120,2895,2415; 3 Small 240,240,855,375; 4 Medium 240,600,1095,375; "
        "5 Normal on 240,960,975,495; 30 Card size preview 1320,240,1335,1935; "
        "6 Back Design 3240,120,2895,2415; 7 Back design 360,360,630,1935; "
        "31 Back design preview 1320,240,1335,1935; "
        "8 Card Order 6360,120,2055,3495; 9 Natural on 240,240,1335,375; 10 Shuffled 240,720,1575,375; "
        "11 By rank then suit, ascending 240,1200,1575,375; 12 By rank then suit, descending 240,1680,1695,495; "
        "13 By suit then rank, ascending 240,2280,1575,495; 14 By suit then rank, descending 240,2880,1695,375; "
        "15 Face Direction 120,2760,1695,1095; 16 Face Up on 240,240,1335,375; 17 Face Down 240,600,1335,375; "
        "18 Card Layout 120,3960,1695,1095; 19 Spread on 240,240,1095,375; 20 In Pile 240,600,1215,255; "
        "21 Deck Type 2040,2760,4095,2295; 22 Standard on Standard 52-card deck 240,240,1575,255; "
        "23 Standard with Jokers Standard 52-card deck plus two jokers 240,480,1935,255; "
        "24 36-card deck Standard 52-card deck without any 2, 3, 4, or 5s 240,720,1815,255; "
        "25 32-card deck Standard 52-card deck without any 2, 3, 4, 5, or 6s 240,960,1815,255; "
        "26 24-card deck Standard 52-card deck without any 2, 3, 4, 5, 6, 7, or 8s 240,1200,1455,255; "
        "27 Double Two standard 52-card decks 240,1440,1455,255; 28 Pinochle Two 24-card decks 240,1680,1215,255; "
        "29 Big Pinochle Two 32-card decks 240,1920,1455,255; 32  2280,720,1575,1095; ");
}

class OptionsTest : public testing::Test {
protected:
    OptionsTest() {
        desktop.keepLog();
        options.Show();
    }
    /// The six settings as "&Play" hands them over: size, back, face, deck, order, layout.
    std::vector<int> play() {
        options.cmdPlay.Click();
        return settings;
    }

    MemoryDesktop desktop{application()};
    std::vector<int> settings;
    frmTumbleOptions options{[this](auto... values) {
        EXPECT_FALSE(desktop.shows(options));
        settings = {values...};
    }};
};

TEST_F(OptionsTest, EachButtonSetsItsOwnAndFreshDialogStartsFromTheDefaults) {
    const std::vector<int> defaults{2, 1, -1, 1, 0, 0};
    const std::vector<std::tuple<Frame&, std::size_t, std::vector<int>>> frames{
        {options.fraCardSize, 0, {0, 1, 2}},
        {options.fraFaceDir, 2, {-1, 0}},
        {options.fraDeckType, 3, {1, 2, 3, 4, 5, 6, 7, 8}},
        {options.fraCardOrder, 4, {0, 1, 2, 3, 4, 5}},
        {options.fraLayout, 5, {0, -1}}};
    std::vector<int> expected = defaults;
    EXPECT_EQ(play(), expected);
    for (const auto& [frame, setting, values] : frames) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            auto& button = *std::get<OptionButton*>(frame.controls()[i]);
            std::get<OptionButton*>(frame.controls()[(i + 1) % values.size()])->Select(); // so that it is chosen anew
            button.Select();
            expected[setting] = values[i];
            EXPECT_EQ(play(), expected) << button.Name();
            EXPECT_EQ(options.lblDeckDescription.Caption() == button.Tag(), setting == 3) << button.Name();
        }
    }
    options.sldBackDesign.Value(3);
    EXPECT_EQ(play()[1], 3);
    options.Unload();
    options.Show();
    EXPECT_EQ(play(), defaults);
    EXPECT_EQ(options.lblDeckDescription.Caption(), "Standard 52-card deck");
}

TEST_F(OptionsTest, PreviewsStandInTheMiddleOfTheirBoxes) {
    options.optCardMedium.Select();
    options.optCardSmall.Select();
    EXPECT_EQ(inWords(desktop.log(options.pctCardSize)),
              "AceSpades 51,8.5; ground 0,0; AceSpades 217.5,267; ground 0,0; AceSpades 303,400.5");
    EXPECT_EQ(options.pctCardSize.painting().items().size(), 1U);
    options.sldBackDesign.Value(3);
    EXPECT_EQ(inWords(desktop.log(options.pctBackDesign)), "CardBack1 51,8.5; CardBack3 51,8.5");
}

TEST(FormTest, ExitAndClosingTheWindowEndTheApplication) {
    const auto expectEnd = [](auto form, bool byButton) {
        Table table;
        auto& window = (table.program.*form)();
        window.Show();
        byButton ? window.cmdExit.Click() : window.Form_Close();
        EXPECT_TRUE(table.desktop.ended() && !table.desktop.shows(window));
    };
    for (const bool byButton : {true, false}) {
        expectEnd(&MainMod::options, byButton);
        expectEnd(&MainMod::table, byButton);
    }
}

TEST(AboutBoxTest, NamesTheApplicationUntilOkIsPressed) {
    const Picture icon("icon", {});
    MemoryDesktop desktop(
        {.Title = "Patience", .Major = 3, .Minor = 20, .Revision = 1, .Icon = icon, .Width = 0, .Height = 0});
    MainMod program;
    desktop.whileModal = [&](Form& form) {
        auto& about = dynamic_cast<frmAbout&>(form);
        EXPECT_EQ(about.Caption() + about.lblTitle.Caption() + about.lblVersion.Caption(),
                  "About PatiencePatienceVersion 3.20.1");
        EXPECT_EQ(inFull(about.picIcon.painting().items().at(0)), "icon 30,30 509,509");
        about.cmdOK.Click();
        EXPECT_FALSE(desktop.shows(about));
    };
    program.table().cmdAbout.Click();
    EXPECT_EQ(desktop.journal().size(), 2U);
}

} // namespace
} // namespace tumble
