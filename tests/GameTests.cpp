#include "game/frmAbout.h"
#include "platform/Picture.h"
#include "platform/Random.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <sstream>
#include <tuple>
#include <utility>
#include <variant>

namespace tumble {
namespace {

/// Notes which controls it was told to show anew.
class WatchfulDesktop : public MemoryDesktop {
public:
    WatchfulDesktop() : MemoryDesktop(application()) { keepLog(); }
    void changed(Control& control) override { changes += control.Name() + " "; }
    std::string changes;
};

class OptionsTest : public testing::Test {
protected:
    /// The six settings as "&Play" hands them over: size, back, face, deck, order, layout.
    std::vector<int> play() {
        options.cmdPlay.Click();
        return settings;
    }

    WatchfulDesktop desktop;
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
    options.Show();
    EXPECT_TRUE(desktop.shows(options));
    std::vector<int> expected = defaults;
    EXPECT_EQ(play(), expected);
    for (const auto& [frame, setting, values] : frames) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            auto& button = *std::get<OptionButton*>(frame.controls()[i]);
            auto& next = *std::get<OptionButton*>(frame.controls()[(i + 1) % values.size()]);
            next.Select();
            desktop.changes.clear();
            button.Select();
            button.Select(); // is selected already
            EXPECT_TRUE(desktop.changes.starts_with(next.Name() + " " + button.Name() + " ")) << desktop.changes;
            EXPECT_TRUE(button.Value() && !next.Value());
            expected[setting] = values[i];
            EXPECT_EQ(play(), expected) << button.Name();
            EXPECT_EQ(options.lblDeckDescription.Caption() == button.Tag(), setting == 3) << button.Name();
        }
    }
    options.sldBackDesign.Value(3);
    EXPECT_EQ(play()[1], 3);
    options.Unload();
    options.Unload();
    options.Show();
    options.Show();
    EXPECT_EQ(play(), defaults);
    EXPECT_EQ(options.lblDeckDescription.Caption(), "Standard 52-card deck");
    EXPECT_EQ(std::count(desktop.journal().begin(), desktop.journal().end(), "unload Tumble Options"), 1);
}

TEST_F(OptionsTest, PreviewsStandInTheMiddleOfTheirBoxesAndFollowEachChoice) {
    options.Show();
    options.optCardMedium.Select();
    options.optCardSmall.Select();
    options.optCardSmall.Select();
    EXPECT_EQ(inWords(desktop.log(options.pctCardSize)),
              "AceSpades 51,8.5; ground 0,0; AceSpades 217.5,267; ground 0,0; AceSpades 303,400.5");
    EXPECT_EQ(inWords(options.pctCardSize.painting().items()), "AceSpades 303,400.5");

    desktop.changes.clear();
    Slider& slider = options.sldBackDesign;
    for (const int value : {9, 4, -1, 3}) {
        slider.Value(value);
    }
    slider.Max(2);
    slider.Max(6);
    slider.Min(5);
    EXPECT_EQ(inWords(desktop.log(options.pctBackDesign)),
              "CardBack1 51,8.5; CardBack4 51,8.5; CardBack1 51,8.5; CardBack3 51,8.5; CardBack2 51,8.5;  51,8.5");
    EXPECT_EQ(desktop.changes.size(), 8 * std::string("sldBackDesign ").size());
    EXPECT_EQ(slider.Min() + 10 * slider.Max() + 100 * slider.Value(), 565);
}

/// A form's size and its controls by their tab positions, each with its place; those of a frame follow it.
std::string placesOn(const Container& container) {
    std::ostringstream text;
    if (const auto* form = dynamic_cast<const Form*>(&container)) {
        text << form->Width() << "," << form->Height() << "; ";
    }
    const auto describe = [&](const auto* control) {
        const auto& [left, top, width, height] = control->place();
        text << control->TabIndex() << ":" << left << "," << top << "," << width << "," << height << "; ";
        if constexpr (requires { control->controls(); }) {
            text << placesOn(*control);
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
    EXPECT_EQ(placesOn(program.table()),
              "9525,6630; 0:240,120,9015,6015; 4:240,6240,1215,375; 5:1560,6240,2775,255; 3:7200,6240,615,375; "
              "2:7920,6240,615,375; 1:8640,6240,615,375; ");
    EXPECT_EQ(placesOn(frmAbout()),
              "4530,1890; 1:240,240,540,540; 2:1050,240,1245,480; 3:1050,780,1365,225; 4:1080,1200,1455,435; "
              "0:3120,1440,1260,345; ");
    EXPECT_EQ(
        placesOn(program.options()),
        "8595,5220; 0:6360,4200,2055,855; 1:6360,3720,2055,375; 2:120,120,2895,2415; 3:240,240,855,375; "
        "4:240,600,1095,375; 5:240,960,975,495; 30:1320,240,1335,1935; 6:3240,120,2895,2415; 7:360,360,630,1935; "
        "31:1320,240,1335,1935; 8:6360,120,2055,3495; 9:240,240,1335,375; 10:240,720,1575,375; 11:240,1200,1575,375; "
        "12:240,1680,1695,495; 13:240,2280,1575,495; 14:240,2880,1695,375; 15:120,2760,1695,1095; "
        "16:240,240,1335,375; 17:240,600,1335,375; 18:120,3960,1695,1095; 19:240,240,1095,375; 20:240,600,1215,255; "
        "21:2040,2760,4095,2295; 22:240,240,1575,255; 23:240,480,1935,255; 24:240,720,1815,255; 25:240,960,1815,255; "
        "26:240,1200,1455,255; 27:240,1440,1455,255; 28:240,1680,1215,255; 29:240,1920,1455,255; "
        "32:2280,720,1575,1095; ");
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

TEST(FormTest, AboutBoxNamesTheApplicationUntilOkIsPressed) {
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
    desktop.whileModal = nullptr;
    program.table().cmdAbout.Click(); // left open, it is unloaded as it goes
    EXPECT_EQ(desktop.journal().size(), 4U);
}

TEST(MainModTest, MainShowsTheOptionsAndPlayOpensTheTable) {
    MemoryDesktop desktop(application());
    MainMod program;
    program.Main();
    program.options().cmdPlay.Click();
    EXPECT_EQ(desktop.journal(),
              (std::vector<std::string>{"show Tumble Options", "hide Tumble Options", "unload Tumble Options",
                                        "show Tumble", "pointer 11", "refresh Tumble", "pointer 0"}));
}

TEST(MainModTest, LaysThePackOutOrInTheMiddleAndThePilesOverIt) {
    Table table;
    MainMod& program = table.program;
    program.startGame(csNormal, bsLast, fdFaceDown, dtStandard, soNatural, lsSpread);
    EXPECT_TRUE(
        table.painted().ends_with("; CardBack4 3550,2000; green 0,0; green 7712,0; green 0,4027; green 7712,4027"));
    for (const auto& pile : {program.pileTopRight, program.pileBottomLeft, program.pileBottomRight}) {
        EXPECT_EQ(pile->accepter(), program.pileTopLeft->accepter());
    }
    for (const int layout : {-1, 1}) {
        program.startGame(csMedium, bsFirst, fdFaceUp, dt24Card, soSuitRankDesc, static_cast<LayoutStyle>(layout));
        EXPECT_EQ(table.painted(), "NineDiamonds 4057.5,2307.5; edge of 24 4057.5,2307.5; green 0,0; green 8045,0; "
                                   "green 0,4545; green 8045,4545");
        EXPECT_EQ(table.tracker().identifyCard(4500, 3000)->pack()->accepter(), nullptr);
    }
}

TEST(MainModTest, InvalidSettingsAreReportedAndTheGameGoesOn) {
    Table table;
    table.program.startGame(static_cast<CardSize>(3), bsFirst, fdFaceUp, static_cast<DeckType>(9),
                            static_cast<SortOrder>(6), lsSpread);
    const std::string size = "; Tumble: Invalid card size!"; // once for each corner
    EXPECT_EQ(table.messages(), "Tumble: Invalid Deck Type!; Tumble: Invalid Deck Type!; "
                                "Tumble: Invalid pack sorting order!" +
                                    size + size + size + size);
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
    table.program.table().cmdHelp.Click();
    EXPECT_TRUE(
        table.messages().starts_with("Tumble Instructions: Drag each of the cards to one of the corner piles."));
}

TEST(ClockRandomTest, ValuesFillTheRangeFromZeroToBelowOneAndAreOthersAtEachTick) {
    ClockRandom random;
    std::vector<float> values(2000);
    std::generate(values.begin(), values.end(), [&] { return random.Rnd(); });
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    EXPECT_TRUE(*least >= 0 && *least < 0.01F && *most > 0.99F && *most < 1);
    std::chrono::system_clock::time_point now;
    const auto firstOfARun = [&now] {
        ClockRandom seeded([&now] { return ++now; });
        seeded.Randomize();
        return seeded.Rnd();
    };
    EXPECT_NE(firstOfARun(), firstOfARun());
}

} // namespace
} // namespace tumble
