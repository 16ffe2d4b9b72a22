#include "Windows.h"

#include "platform/qt/PaintingReplay.h"
#include "table/CardTracker.h"

#include <QImage>
#include <QLabel>

#include <random>

namespace tumble {

namespace {

constexpr QRgb green = qRgb(0, 255, 0);
constexpr QRgb blue = qRgb(0, 0, 255);
constexpr QRgb black = qRgb(0, 0, 0);

/// The table as it shows, in device pixels.
QImage picture(QWidget* surface) {
    return surface->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

TEST_F(Windows, EnterOnTheFreshDialogStartsTheDefaultGame) {
    QWidget* table = openTable();
    EXPECT_EQ(window("Tumble Options"), nullptr);
    EXPECT_EQ(table->cursor().shape(), Qt::ArrowCursor);
    const auto lastOfFirstRow = mainMod.tableTracker->identifyCard(6560, 1100);
    ASSERT_NE(lastOfFirstRow, nullptr);
    EXPECT_EQ(lastOfFirstRow->getStr(), "Ten of Spades");
    EXPECT_EQ(lastOfFirstRow->x2(), 7782);
    EXPECT_EQ(mainMod.tableTracker->identifyCard(8944, 0)->getStr(), "Pile (empty)");
}

TEST_F(Windows, TheDialogIsPlayedByKeys) {
    QWidget* dialog = openDialog();
    const auto focused = [] { return QApplication::focusWidget()->objectName(); };
    const std::vector<QString> order{"cmdPlay",         "cmdExit",       "optCardNormal",   "sldBackDesign",
                                     "optNaturalOrder", "optFaceUp",     "optLayoutSpread", "optDeckStandard",
                                     "pctCardSize",     "pctBackDesign", "cmdPlay"};
    for (const QString& name : order) {
        EXPECT_EQ(focused(), name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QWidget* slider = control("Tumble Options", "sldBackDesign");
    QTest::keyClick(slider, Qt::Key_Down);
    QTest::keyClick(slider, Qt::Key_Down);
    EXPECT_EQ(mainMod.options().sldBackDesign.Value(), 3);
    control("Tumble Options", "optNaturalOrder")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(mainMod.options().optShuffled.Value());
    QTest::keyClick(control("Tumble Options", "optDeckPinochle"), Qt::Key_Space);
    EXPECT_EQ(mainMod.options().lblDeckDescription.Caption(), "Two 24-card decks");
    EXPECT_FALSE(mainMod.options().optDeckStandard.Value());
    QTest::keyClick(dialog, Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return window("Tumble") != nullptr; }));
}

TEST_F(Windows, EnterEndsTheTableAndEscDoesNot) {
    QWidget* table = openTable();
    QTest::keyClick(table, Qt::Key_Escape);
    EXPECT_TRUE(table->isVisible());
    EXPECT_FALSE(ended());
    QTest::keyClick(table, Qt::Key_Return);
    EXPECT_TRUE(ended());
    EXPECT_EQ(window("Tumble"), nullptr);
}

TEST_F(Windows, EscOnTheDialogEndsTheProgram) {
    QTest::keyClick(openDialog(), Qt::Key_Escape);
    EXPECT_TRUE(ended());
    EXPECT_EQ(window("Tumble Options"), nullptr);
}

TEST_F(Windows, TheFrameOfTheDialogEndsTheProgram) {
    openDialog()->close();
    EXPECT_TRUE(ended());
}

TEST_F(Windows, TheFrameOfTheTableEndsTheProgram) {
    openTable()->close();
    EXPECT_TRUE(ended());
}

TEST_F(Windows, TheTableIsPlayedByKeysToo) {
    QWidget* table = openTable();
    for (const char* name : {"picTable", "cmdExit", "cmdHelp", "cmdAbout", "picTable"}) {
        EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    closeNextMessage();
    QTest::keyClick(table, Qt::Key_H, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !messages.empty(); }));
    EXPECT_EQ(messages[0].substr(0, 66), "Drag each of the cards to one of the corner piles. Each pile must\n");

    for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
        QTimer::singleShot(0, [key] {
            QWidget* about = QApplication::activeModalWidget();
            ASSERT_NE(about, nullptr);
            EXPECT_EQ(about->windowTitle(), "About Tumble");
            EXPECT_FALSE(window("Tumble")->isActiveWindow());
            QTest::keyClick(about, key);
        });
        QTest::keyClick(control("Tumble", "cmdAbout"), Qt::Key_Space);
        EXPECT_EQ(window("About Tumble"), nullptr);
    }
}

TEST_F(Windows, TheMouseDragsACardToACorner) {
    openTable();
    const auto* label = qobject_cast<QLabel*>(control("Tumble", "lblCurrentCard"));
    mouse(QTest::MouseMove, 1350, 1150);
    EXPECT_EQ(label->text(), "Two of Diamonds");
    drag({1350, 1150}, {180, 240});
    EXPECT_EQ(mainMod.pileTopLeft->numCards(), 1);
    EXPECT_EQ(mainMod.pileTopLeft->seeTopCard()->getStr(), "Two of Diamonds");
    mouse(QTest::MouseMove, 180, 300);
    EXPECT_EQ(label->text(), "Pile (Two of Diamonds)");
    mouse(QTest::MouseMove, 5000, 5500);
    EXPECT_EQ(label->text(), "None");
}

TEST_F(Windows, ADoubleClickIsTwoPresses) {
    openTable();
    const QImage before = picture(control("Tumble", "picTable"));
    mouse(QTest::MousePress, 1350, 1150, Qt::RightButton);
    mouse(QTest::MouseRelease, 1350, 1150, Qt::RightButton);
    EXPECT_NE(picture(control("Tumble", "picTable")), before);
    mouse(QTest::MousePress, 1350, 1150, Qt::RightButton);
    mouse(QTest::MouseRelease, 1350, 1150, Qt::RightButton);
    EXPECT_EQ(picture(control("Tumble", "picTable")), before);
}

TEST_F(Windows, ASecondButtonIsAPressLikeAnyOther) {
    openTable();
    const auto ace = mainMod.tableTracker->identifyCard(4400, 3500);
    ASSERT_EQ(ace->getStr(), "Ace of Spades");
    mouse(QTest::MousePress, 4400, 3500, Qt::LeftButton);
    mouse(QTest::MouseMove, 5000, 4500);
    const QImage face = picture(control("Tumble", "picTable"));
    mouse(QTest::MousePress, 5000, 4500, Qt::RightButton);
    EXPECT_NE(picture(control("Tumble", "picTable")), face) << "the card in the hand is flipped";
    mouse(QTest::MouseRelease, 5000, 4500, Qt::RightButton);
    EXPECT_FALSE(mainMod.tableTracker->moveInProg()) << "any button's release drops";
    mouse(QTest::MouseRelease, 5000, 4500, Qt::LeftButton);
    EXPECT_EQ(mainMod.tableTracker->identifyCard(5000, 4500), ace);
}

TEST_F(Windows, AHeldButtonReachesBeyondTheTable) {
    openTable();
    const auto ace = mainMod.tableTracker->identifyCard(4400, 3500);
    mouse(QTest::MousePress, 4400, 3500, Qt::LeftButton);
    mouse(QTest::MouseMove, 5000, 4500);
    for (const Point outside : {Point{-150, 3000}, Point{9060, 3000}, Point{4400, 6030}}) {
        mouse(QTest::MouseMove, outside.x, outside.y);
        EXPECT_EQ(ace->x1(), 5000 - 4400 + 3550) << "dropped where the last step left it";
        EXPECT_TRUE(mainMod.tableTracker->moveInProg());
    }
    mouse(QTest::MouseRelease, 5000, 4500, Qt::LeftButton);
    EXPECT_FALSE(mainMod.tableTracker->moveInProg());
}

// The box swallows the release of the button: the drag stays armed and the card follows the mouse until the next one.
TEST_F(Windows, ARefusalBeyondTheLimitsLeavesTheDragArmed) {
    openTable();
    const auto ace = mainMod.tableTracker->identifyCard(4400, 3500);
    mouse(QTest::MousePress, 4395, 3495, Qt::LeftButton);
    mouse(QTest::MouseMove, 8010, 4710);
    closeNextMessage([] { mouse(QTest::MouseRelease, 8970, 4710, Qt::LeftButton); });
    mouse(QTest::MouseMove, 8970, 4710);
    EXPECT_EQ(messages, std::vector<std::string>{"You must play the lowest ranking card, a Two"});
    EXPECT_TRUE(mainMod.tableTracker->moveInProg());
    EXPECT_EQ(ace->x1(), 8010 - 4395 + 3550) << "dropped where the last step left it";

    mouse(QTest::MouseMove, 8010, 4005);
    EXPECT_EQ(ace->x1(), 8010 - 8970 + 8010 - 4395 + 3550) << "held where the refused step held it";
    mouse(QTest::MouseMove, 5500, 3000);
    mouse(QTest::MousePress, 5500, 3000, Qt::LeftButton);
    mouse(QTest::MouseRelease, 5500, 3000, Qt::LeftButton);
    EXPECT_FALSE(mainMod.tableTracker->moveInProg());
    EXPECT_EQ(messages.size(), 1U);
}

TEST_F(Windows, WhatShowsIsWhatWasPainted) {
    openTable();
    QWidget* surface = control("Tumble", "picTable");
    const PixelScale scale(surface->devicePixelRatioF());
    const auto colourAt = [&](float X, float Y) {
        return picture(surface).pixel(scale.pixel(X), scale.pixel(Y)) | 0xFF000000U;
    };
    EXPECT_EQ(colourAt(600, 100), green) << "an empty pile";
    EXPECT_EQ(colourAt(0, 0), black) << "and its X, which begins in the corner";
    const QRgb ground = colourAt(5000, 5500);
    EXPECT_EQ(ground, toQColor(tableGreen).rgb());

    mouse(QTest::MousePress, 4400, 3500, Qt::LeftButton);
    mouse(QTest::MouseMove, 5000, 3600);
    EXPECT_EQ(colourAt(600, 100), blue) << "a pile while a card is dragged";
    mouse(QTest::MouseRelease, 5000, 3600, Qt::LeftButton);
    const auto ace = mainMod.tableTracker->identifyCard(5000, 3600);
    const QImage shown = picture(surface);
    const int left = scale.pixel(static_cast<float>(ace->x1()));
    const int right = scale.pixel(static_cast<float>(ace->x2()));
    const int bottom = scale.pixel(static_cast<float>(ace->y2()));
    for (int x = left; x <= right; ++x) {
        EXPECT_EQ(shown.pixel(x, bottom), black) << "the border at " << x;
        EXPECT_EQ(shown.pixel(x, bottom + 1), ground) << "and nothing below it";
    }
}

/// A surface that keeps everything that was ever painted on it.
class LoggingSurface : public DrawingSurface {
public:
    LoggingSurface() : DrawingSurface(9015, 6015, tableGreen) {}
    std::vector<PaintItem> log;

protected:
    void painted(const PaintItem& item) override { log.push_back(item); }
};

TEST(PaintingReplayTest, TheListShowsWhatTheLogShows) {
    const QtDesktop desktop(application());
    for (const double factor : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        LoggingSurface surface;
        CardTracker tracker;
        tracker.picture(&surface);
        std::mt19937 random(static_cast<unsigned>(factor * 100));
        const auto place = [&](int limit) { return static_cast<float>(static_cast<int>(random() % 9000U) % limit); };
        for (int i = 0; i < 12; ++i) {
            const auto rank = static_cast<CardRank>(rkTwo + i);
            tracker.addCard(rank, suHeart, place(7800), place(4000), static_cast<CardSize>(i % 3), fdFaceUp, bsFirst);
        }
        for (int drags = 0; drags < 40; ++drags) {
            tracker.identifyCard(place(9000), place(6000));
            tracker.startCurCardMove(place(9000), place(6000));
            tracker.moveCurCard(place(9000), place(6000));
            if (drags % 3 == 0) {
                tracker.endCurCardMove();
            }
        }
        const PixelScale scale(factor);
        const QRect all = toQRect(scale.pixels(surface.painting().bounds()));
        PictureCache pictures({});
        QImage list(all.size(), QImage::Format_RGB32);
        QImage log(all.size(), QImage::Format_RGB32);
        replay(tableGreen, surface.painting().items(), scale, all, pictures, list);
        replay(tableGreen, surface.log, scale, all, pictures, log);
        EXPECT_EQ(list, log) << "at " << factor;
    }
}

/// What the toolkit complains of during a test fails it.
void onMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    const bool ofNoDisplay = message.startsWith("This plugin does not support");
    if (type != QtDebugMsg && type != QtInfoMsg && !ofNoDisplay) {
        ADD_FAILURE() << message.toStdString();
    }
}

} // namespace

} // namespace tumble

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    qInstallMessageHandler(tumble::onMessage);
    return RUN_ALL_TESTS();
}
