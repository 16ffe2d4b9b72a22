#include "game/frmAbout.h"
#include "platform/Picture.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
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
    EXPECT_EQ(form.events, "inFrame two ");
    form.frame.Caption("New");
    EXPECT_EQ(desktop.changes, "inFrame one two frame ");
}

TEST(SliderTest, StaysInItsRangeAndTellsOfEachNewValue) {
    WatchfulDesktop desktop;
    TestForm form;
    Slider& slider = form.slider;
    slider.Value(9);
    slider.Value(4);
    slider.Value(-1);
    slider.Value(3);
    EXPECT_EQ(form.events, "403");
    EXPECT_EQ(std::exchange(desktop.changes, ""), "slider slider slider ");
    slider.Max(2);
    EXPECT_EQ(slider.Value(), 2);
    slider.Min(1);
    slider.Max(6);
    slider.Min(5);
    EXPECT_EQ(form.events, "40325");
    EXPECT_EQ(desktop.changes, "slider slider slider slider slider slider ");
    EXPECT_EQ(slider.Min() + 10 * slider.Max(), 65);
}

TEST(FormTest, LoadsWhenShownAndAfreshOnceUnloaded) {
    MemoryDesktop desktop(application());
    {
        TestForm form;
        form.Unload();
        form.Show();
        form.Hide();
        EXPECT_FALSE(desktop.shows(form));
        form.Show();
        EXPECT_EQ(form.loads, 1);
        form.Form_Close();
        form.Show();
        EXPECT_EQ(form.loads, 2);
        EXPECT_EQ(&form.frame.form(), &form);
    }
    const std::vector<std::string> asked{"show Test",   "hide Test", "show Test",
                                         "unload Test", "show Test", "unload Test"};
    EXPECT_EQ(desktop.journal(), asked);
}

/// What is fixed about a form and its controls, a line each, those of a frame after it.
class Description {
public:
    explicit Description(const Form& form) {
        text << form.Caption() << " " << form.Width() << "x" << form.Height();
        describeAll(form);
    }
    std::ostringstream text;

private:
    void describeAll(const Container& container) {
        for (const AnyControl& any : container.controls()) {
            std::visit([this](const auto* control) { describe(*control); }, any);
        }
    }
    template<class Kind>
    void describe(const Kind& control) {
        const auto& [left, top, width, height] = control.place();
        text << "\n" << control.TabIndex() << " '" << control.Caption() << "' " << left << "," << top;
        text << " " << width << "x" << height;
        if constexpr (requires { control.font; }) {
            text << " " << control.font.points << (control.font.bold ? " bold" : "");
        }
        if constexpr (requires { control.align; }) {
            text << (control.align == TextAlign::Centre ? " centred" : "");
        } else if constexpr (requires { control.Click; }) {
            text << (control.pressedByEnter() ? " Enter" : "") << (control.pressedByEsc() ? " Esc" : "");
            text << (control.face == ButtonFace::IconAboveCaption ? " icon" : "");
        } else if constexpr (requires { control.Tag(); }) {
            text << (control.Value() ? " on" : "") << (control.Tag().empty() ? "" : " ") << control.Tag();
        } else if constexpr (requires { control.Max(); }) {
            text << " " << control.Min() << " to " << control.Max();
        } else if constexpr (requires { control.controls(); }) {
            describeAll(control);
        }
    }
};

TEST(FormTest, ControlsLieWhereTheyWereDesigned) {
    MemoryDesktop desktop(application());
    MainMod program;
    const frmAbout about;
    EXPECT_EQ(Description(program.table()).text.str(), R"(Tumble 9525x6630
0 'Table' 240,120 9015x6015
4 'Current Card:' 240,6240 1215x375 8.25 bold
5 '' 1560,6240 2775x255 8.25
3 '&About' 7200,6240 615x375
2 '&Help' 7920,6240 615x375
1 'E&xit' 8640,6240 615x375 Enter)");
    EXPECT_EQ(Description(about).text.str(), R"(About Tumble 4530x1890
1 'Icon' 240,240 540x540
2 'Tumble' 1050,240 1245x480 13.5 bold
3 'Version 1.0' 1050,780 1365x225 8.25
4 ')" + about.lblDisclaimer.Caption() + R"(' 1080,1200 1455x435 8.25
0 'OK' 3120,1440 1260x345 Enter Esc)");
    EXPECT_EQ(Description(program.options()).text.str(), R"(Tumble Options 8595x5220
0 '&Play' 6360,4200 2055x855 Enter icon
1 'E&xit' 6360,3720 2055x375 Esc
2 'Card Size' 120,120 2895x2415 8.25 bold
3 'Small' 240,240 855x375
4 'Medium' 240,600 1095x375
5 'Normal' 240,960 975x495 on
30 'Card size preview' 1320,240 1335x1935
6 'Back Design' 3240,120 2895x2415 8.25 bold
7 'Back design' 360,360 630x1935 1 to 4
31 'Back design preview' 1320,240 1335x1935
8 'Card Order' 6360,120 2055x3495 8.25 bold
9 'Natural' 240,240 1335x375 on
10 'Shuffled' 240,720 1575x375
11 'By rank then suit, ascending' 240,1200 1575x375
12 'By rank then suit, descending' 240,1680 1695x495
13 'By suit then rank, ascending' 240,2280 1575x495
14 'By suit then rank, descending' 240,2880 1695x375
15 'Face Direction' 120,2760 1695x1095 8.25 bold
16 'Face Up' 240,240 1335x375 on
17 'Face Down' 240,600 1335x375
18 'Card Layout' 120,3960 1695x1095 8.25 bold
19 'Spread' 240,240 1095x375 on
20 'In Pile' 240,600 1215x255
21 'Deck Type' 2040,2760 4095x2295 8.25 bold
22 'Standard' 240,240 1575x255 on Standard 52-card deck
23 'Standard with Jokers' 240,480 1935x255 Standard 52-card deck plus two jokers
24 '36-card deck' 240,720 1815x255 Standard 52-card deck without any 2, 3, 4, or 5s
25 '32-card deck' 240,960 1815x255 Standard 52-card deck without any 2, 3, 4, 5, or 6s
26 '24-card deck' 240,1200 1455x255 Standard 52-card deck without any 2, 3, 4, 5, 6, 7, or 8s
27 'Double' 240,1440 1455x255 Two standard 52-card decks
28 'Pinochle' 240,1680 1215x255 Two 24-card decks
29 'Big Pinochle' 240,1920 1455x255 Two 32-card decks
32 '' 2280,720 1575x1095 8.25 bold centred)");
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
        std::vector<int> turns = values; // there and back again, so that each is chosen anew
        turns.insert(turns.end(), values.rbegin(), values.rend());
        for (const int value : turns) {
            const auto at = std::find(values.begin(), values.end(), value) - values.begin();
            auto& button = *std::get<OptionButton*>(frame.controls()[static_cast<std::size_t>(at)]);
            button.Select();
            expected[setting] = value;
            EXPECT_EQ(play(), expected) << button.Name();
            EXPECT_EQ(options.lblDeckDescription.Caption() == button.Tag(), setting == 3) << button.Name();
        }
    }
    options.sldBackDesign.Value(3);
    EXPECT_EQ(play()[1], 3);
    options.optFaceDown.Select();
    options.optDeckDouble.Select();
    options.optShuffled.Select();
    options.optLayoutInPile.Select();
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
    for (const int way : {0, 1, 2, 3}) {
        Table table;
        frmTumble& window = table.program.table();
        frmTumbleOptions& options = table.program.options();
        const std::vector<std::function<void()>> ways{options.cmdExit.Click, [&] { options.Form_Close(); },
                                                      window.cmdExit.Click, [&] { window.Form_Close(); }};
        Form& form = way < 2 ? static_cast<Form&>(options) : window;
        form.Show();
        ways[static_cast<std::size_t>(way)]();
        EXPECT_FALSE(table.desktop.shows(form));
        EXPECT_TRUE(table.desktop.ended());
    }
}

TEST(AboutBoxTest, NamesTheApplicationUntilOkIsPressed) {
    const Picture icon("icon", {});
    MemoryDesktop desktop(
        {.Title = "Patience", .Major = 3, .Minor = 20, .Revision = 1, .Icon = icon, .Width = 0, .Height = 0});
    MainMod program;
    int opened = 0;
    desktop.whileModal = [&](Form& form) {
        ++opened;
        auto& about = dynamic_cast<frmAbout&>(form);
        EXPECT_EQ(about.Caption() + about.lblTitle.Caption() + about.lblVersion.Caption(),
                  "About PatiencePatienceVersion 3.20.1");
        EXPECT_EQ(inFull(about.picIcon.painting().items().at(0)), "icon 30,30 509,509");
        about.cmdOK.Click();
        EXPECT_FALSE(desktop.shows(about));
    };
    program.table().cmdAbout.Click();
    EXPECT_EQ(opened, 1);
    const Application App = application();
    EXPECT_EQ(App.Title + std::to_string(App.Major) + std::to_string(App.Minor) + std::to_string(App.Revision),
              "Tumble001");
}

} // namespace
} // namespace tumble
