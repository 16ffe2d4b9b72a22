#include "game/frmAbout.h"
#include "platform/base/Random.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <map>
#include <sstream>
#include <tuple>
#include <utility>
#include <variant>

namespace tumble {
namespace {

/// Records the changed controls, and calls `whenPainted` for each item.
class WatchfulDesktop : public MemoryDesktop {
public:
    WatchfulDesktop() : MemoryDesktop(application()) { keepLog(); }
    void changed(Control& control) override { changes += control.Name() + " "; }
    void painted(PictureBox& box, const DisplayItem& item) override {
        MemoryDesktop::painted(box, item);
        whenPainted(item);
    }
    std::string changes;
    std::function<void(const DisplayItem&)> whenPainted = [](const DisplayItem&) {};
};

class OptionsTest : public testing::Test {
protected:
    /// The six settings that "&Play" passes on: size, back, face, deck, order, layout.
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
            button.Select(); // a second time
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
              "AceSpades 51,8.5; window 0,0; AceSpades 217.5,267; window 0,0; AceSpades 303,400.5");
    EXPECT_EQ(inWords(options.pctCardSize.displayList().items()), "AceSpades 303,400.5");

    for (const int value : {9, 4, -1, 3}) {
        options.sldBackDesign.Value(value);
    }
    EXPECT_EQ(inWords(desktop.log(options.pctBackDesign)),
              "CardBack1 51,8.5; CardBack4 51,8.5; CardBack1 51,8.5; CardBack3 51,8.5");
    EXPECT_EQ(options.pctBackDesign.displayList().items().size(), 1U); // each covers the one before it
}

/// A form's size and the design of its controls, sorted by tab position; a frame's controls follow the frame.
std::string designOf(const Container& container) {
    std::ostringstream text;
    if (const auto* form = dynamic_cast<const Form*>(&container)) {
        text << form->Width() << "," << form->Height() << "; ";
    }
    const auto describe = [&](const auto* control) {
        const auto& [left, top, width, height] = control->place();
        text << control->TabIndex() << ":" << left << "," << top << "," << width << "," << height << " '"
             << control->Caption() << "'";
        if constexpr (requires { control->font; }) {
            text << " " << control->font.points << (control->font.bold ? " bold" : "");
        } else if constexpr (requires { control->face; }) {
            text << (control->pressedBy(Key::Enter) ? " Enter" : "") << (control->pressedBy(Key::Esc) ? " Esc" : "")
                 << (control->pressedBy(Key::F1) ? " F1" : "")
                 << (control->face == ButtonFace::IconAboveCaption ? " icon" : "");
        }
        if constexpr (requires { control->align; }) {
            text << (control->align == TextAlign::Centre ? " centred" : "");
        }
        text << "; ";
        if constexpr (requires { control->controls(); }) {
            text << designOf(*control);
        }
    };
    for (const AnyControl& any : container.controls()) {
        std::visit(describe, any);
    }
    return text.str();
}

TEST(FormTest, ControlsAreAsTheyWereDesigned) {
    MemoryDesktop desktop(application());
    MainMod program;
    EXPECT_EQ(designOf(program.table()),
              "9525,6630; 0:240,120,9015,6015 'Table'; 4:240,6240,1215,375 'Current Card:' 8.25 bold; "
              "5:1560,6240,2775,255 '' 8.25; 3:7200,6240,615,375 '&About'; 2:7920,6240,615,375 '&Help' F1; "
              "1:8640,6240,615,375 'E&xit' Enter; ");
    EXPECT_TRUE(application().Width == program.table().Width() && application().Height == program.table().Height());
    std::string about;
    desktop.whileModal = [&](Form& form) {
        about = designOf(form);
        dynamic_cast<frmAbout&>(form).cmdOK.Click();
        EXPECT_FALSE(desktop.shows(form));
    };
    program.table().cmdAbout.Click();
    EXPECT_EQ(about,
              "4530,1890; 1:240,240,540,540 'Icon'; 2:1050,240,1245,480 'Tumble' 13.5 bold; "
              "3:1050,780,1365,225 'Version " TUMBLE_VERSION "' 8.25; 4:1080,1200,1455,435 '\u00A9 2026 Tumble' 8.25; "
              "0:3120,1440,1260,345 'OK' Enter Esc; ");
    EXPECT_EQ(
        designOf(program.options()),
        "8595,5220; 0:6360,4200,2055,855 '&Play' Enter icon; 1:6360,3720,2055,375 'E&xit' Esc; "
        "2:120,120,2895,2415 'Card Size' 8.25 bold; 3:240,240,855,375 'Small'; 4:240,600,1095,375 'Medium'; "
        "5:240,960,975,495 'Normal'; 30:1320,240,1335,1935 'Card size preview'; "
        "6:3240,120,2895,2415 'Back Design' 8.25 bold; 7:360,360,630,1935 'Back design'; "
        "31:1320,240,1335,1935 'Back design preview'; 8:6360,120,2055,3495 'Card Order' 8.25 bold; "
        "9:240,240,1335,375 'Natural'; 10:240,720,1575,375 'Shuffled'; "
        "11:240,1200,1575,375 'By rank then suit, ascending'; 12:240,1680,1695,495 'By rank then suit, descending'; "
        "13:240,2280,1575,495 'By suit then rank, ascending'; 14:240,2880,1695,375 'By suit then rank, descending'; "
        "15:120,2760,1695,1095 'Face Direction' 8.25 bold; 16:240,240,1335,375 'Face Up'; "
        "17:240,600,1335,375 'Face Down'; 18:120,3960,1695,1095 'Card Layout' 8.25 bold; 19:240,240,1095,375 'Spread'; "
        "20:240,600,1215,255 'In Pile'; 21:2040,2760,4095,2295 'Deck Type' 8.25 bold; 22:240,240,1575,255 'Standard'; "
        "23:240,480,1935,255 'Standard with Jokers'; 24:240,720,1815,255 '36-card deck'; "
        "25:240,960,1815,255 '32-card deck'; 26:240,1200,1455,255 '24-card deck'; 27:240,1440,1455,255 'Double'; "
        "28:240,1680,1215,255 'Pinochle'; 29:240,1920,1455,255 'Big Pinochle'; "
        "32:2280,720,1575,1095 '' 8.25 bold centred; ");
}

TEST(MessageBoxTest, IsAsLargeAsItsTextWhichWrapsAtFourFifthsOfTheTable) {
    const MemoryDesktop desktop(application());
    using Case = std::tuple<std::size_t, Place, float>; // letters, the text's place, the width of the box
    for (const auto& [letters, place, width] :
         {Case{5, {240, 240, 525, 600}, 1905}, Case{72, {240, 240, 7560, 600}, 8040},
          Case{300, {240, 240, 7620, 1125}, 8100}}) {
        const MessageBox box(std::string(letters, 'x'), "!");
        EXPECT_EQ(std::tuple(box.lblText.place(), box.Width()), std::tuple(place, width)) << letters;
        EXPECT_GE(box.cmdOK.place().Top, place.Top + place.Height);
        EXPECT_LT(box.cmdOK.place().Top + box.cmdOK.place().Height, box.Height());
    }
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

TEST(MainModTest, PlayOpensTheTableAndDealsCardByCardUnderTheHourglass) {
    WatchfulDesktop desktop;
    MainMod program;
    program.Main();
    std::map<std::string, int> paintings; // by the last journal entry, and the card already on the table
    desktop.whenPainted = [&](const DisplayItem& item) {
        const auto crd = program.tableTracker->identifyCard(item.bounds.right, item.bounds.bottom);
        ++paintings[desktop.journal().back() + (crd == nullptr ? "" : ", " + crd->getStr())];
    };
    program.options().cmdPlay.Click();
    EXPECT_EQ(paintings, (std::map<std::string, int>{{"refresh Tumble", 52}, {"refresh Tumble, Pile (empty)", 4}}));
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
    table.drag({1310, 1010}, {1242, 1927}); // the lowest card touches the pile with its corner
    EXPECT_EQ(program.pileTopLeft->numCards(), 1);
    table.painted();
    for (const int layout : {-1, 1}) {
        program.startGame(csMedium, bsFirst, fdFaceUp, dtDouble, soSuitRankDesc, static_cast<LayoutStyle>(layout));
        EXPECT_EQ(table.painted(), "TwoDiamonds 4057.5,2307.5; edge of 104 4057.5,2307.5; green 0,0; green 8045,0; "
                                   "green 0,4545; green 8045,4545");
        EXPECT_EQ(table.tracker().identifyCard(4500, 3000)->pack()->accepter(), nullptr);
    }
}

TEST(TableWindowTest, LabelNamesTheCardUnderTheMouseAndARightPressFlipsIt) {
    Table table;
    table.lay(rkFive, suHeart, 100, 100);
    table.layPile(3000, 100, {makeCard(rkSix, suSpade)});
    table.press({3010, 110}, 4);
    EXPECT_EQ(table.label(), "Pile (Six of Spades)");
    table.drag({110, 110}, {3010, 110});
    EXPECT_EQ(table.label(), "Five of Hearts"); // until the next mouse move
    table.drag({3010, 110}, {3010, 4510});
    EXPECT_EQ(table.label(), "Pile (Five of Hearts)");
    table.painted();
    table.press({3010, 4510}, 2); // flips the card, starts no drag
    table.release({200, 200});
    table.press({3010, 110}, 2); // a pile cannot be flipped
    EXPECT_EQ(table.painted(), "CardBack1 3000,4500; SixSpades 3000,100; edge of 1 3000,100; CardBack1 3000,4500");
    table.program.table().cmdHelp.Click();
    EXPECT_EQ(table.messages(),
              "Tumble Instructions: Drag each of the cards to one of the corner piles. Each pile must\n"
              "contain a different suit, and the cards must be built up from\n"
              "lowest card (Two) to highest card (Ace).  Right-click on a card to\n"
              "flip it (you cannot flip piles).");
}

TEST(ClockRandomTest, ValuesFillTheRangeFromZeroToBelowOneAndAreOthersAtEachTick) {
    ClockRandom random;
    std::vector<float> values(2000);
    std::generate(values.begin(), values.end(), [&] { return random.Rnd(); });
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    EXPECT_TRUE(*least >= 0 && *least < 0.01F && *most > 0.99F && *most < 1);
    std::chrono::system_clock::time_point now;
    const auto firstOfARun = [&now] {
        ClockRandom seeded([&now] { return now += std::chrono::system_clock::duration(1); });
        seeded.Randomize();
        return seeded.Rnd();
    };
    EXPECT_NE(firstOfARun(), firstOfARun());
}

} // namespace
} // namespace tumble
