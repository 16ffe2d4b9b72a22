#include "Windows.h"

#include "cards/CardImages.h"
#include "platform/paint/Replay.h"
#include "platform/qt/QtCanvas.h"

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <tuple>

namespace tumble {

namespace {

constexpr QRgb green = qRgb(0, 255, 0);
constexpr QRgb blue = qRgb(0, 0, 255);
constexpr QRgb black = qRgb(0, 0, 0);

/// The table as it shows, in device pixels.
QImage picture(QWidget* surface) {
    return surface->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

int blackPixels(const QImage& shown, const PixelRect& block) {
    int count = 0;
    for (int y = block.top; y <= block.bottom; ++y) {
        for (int x = block.left; x <= block.right; ++x) {
            count += shown.pixel(x, y) == black ? 1 : 0;
        }
    }
    return count;
}

/// The border of a card covers exactly the pixels of its place: none is missing, and beyond it on the right and below
/// none is black.
void expectBorderOf(const Card& crd, const QImage& shown, PixelScale scale) {
    const PixelRect box = scale.pixels({.left = static_cast<float>(crd.x1()),
                                        .top = static_cast<float>(crd.y1()),
                                        .right = static_cast<float>(crd.x2()),
                                        .bottom = static_cast<float>(crd.y2())});
    for (const PixelRect& side : boxSides(box, scale.pen())) {
        EXPECT_EQ(blackPixels(shown, side), side.width() * side.height()) << "at " << scale.factor();
    }
    EXPECT_EQ(blackPixels(shown, {box.left, box.bottom + 1, box.right, box.bottom + 1}), 0) << "at " << scale.factor();
    EXPECT_EQ(blackPixels(shown, {box.right + 1, box.top, box.right + 1, box.bottom}), 0) << "at " << scale.factor();
}

TEST_F(Windows, TheDialogIsPlayedByKeys) {
    QWidget* dialog = openDialog();
    const std::vector<QString> order{"cmdPlay",         "cmdExit",       "optCardNormal",   "sldBackDesign",
                                     "optNaturalOrder", "optFaceUp",     "optLayoutSpread", "optDeckStandard",
                                     "pctCardSize",     "pctBackDesign", "cmdPlay"};
    for (const QString& name : order) {
        EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
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
    QWidget* preview = control("Tumble Options", "pctCardSize");
    preview->setFocus();
    const QImage before = picture(preview);
    QTest::keyClick(preview, Qt::Key_Home);
    EXPECT_EQ(picture(preview), before) << "no pointer where the mouse does nothing";
    QTest::keyClick(dialog, Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return window("Tumble") != nullptr; }));
}

TEST_F(Windows, TabGoesRoundTheTableAndEscDoesNotLeaveIt) {
    QWidget* table = openTable();
    for (const char* name : {"picTable", "cmdExit", "cmdHelp", "cmdAbout", "picTable"}) {
        EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QTest::keyClick(table, Qt::Key_Escape);
    EXPECT_TRUE(table->isVisible());
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

TEST_F(Windows, WhatShowsIsWhatWasPainted) {
    openTable();
    QWidget* surface = control("Tumble", "picTable");
    const PixelScale scale(surface->devicePixelRatioF());
    const auto colourAt = [&](float X, float Y) {
        return picture(surface).pixel(scale.pixel(X), scale.pixel(Y)) | 0xFF000000U;
    };
    EXPECT_EQ(colourAt(600, 100), green) << "an empty pile";
    for (const auto& [X, Y] : {Point{0, 0}, {1232, 0}, {0, 1917}, {1232, 1917}, {616, 958}}) {
        EXPECT_EQ(colourAt(X, Y), black) << "and its X from corner to corner: " << X << "," << Y;
    }
    const QRgb ground = colourAt(6500, 5500);
    EXPECT_EQ(ground, toQColor(tableGreen).rgb());

    mouse(QTest::MousePress, 4400, 3500, Qt::LeftButton);
    mouse(QTest::MouseMove, 5000, 5000);
    EXPECT_EQ(colourAt(600, 100), blue) << "a pile while a card is dragged";
    int leastGreen = 255; // where the circle of a marked card cuts a level line, it is red
    for (int X = 3890; X < 3940; X += 5) {
        leastGreen = std::min(leastGreen, qGreen(colourAt(static_cast<float>(X), 2959)));
    }
    EXPECT_LT(leastGreen, 128);
    mouse(QTest::MouseRelease, 5000, 5000, Qt::LeftButton);
    mouse(QTest::MousePress, 1350, 1150, Qt::LeftButton);
    mouse(QTest::MouseRelease, 300, 300, Qt::LeftButton);
    EXPECT_EQ(colourAt(1227, 900), qRgb(102, 102, 102)) << "the right edge of a pile with one card";
    EXPECT_EQ(colourAt(600, 1912), qRgb(51, 51, 51)) << "and its lower one";
    expectBorderOf(*mainMod.tableTracker->identifyCard(5000, 5000), picture(surface), scale);
}

// The mouse is reported in whole twips at every scale, so that no step is lost and the card never slips under the
// pointer.
TEST_F(Windows, ASlowDragKeepsTheCardUnderTheHandAtEveryScale) {
    openDialog();
    mainMod.options().optDeck24Card.Select();
    QWidget* table = openTable();
    QWidget* surface = control("Tumble", "picTable");
    mouse(QTest::MousePress, 5600, 2300, Qt::LeftButton);
    mouse(QTest::MouseRelease, 5000, 4900, Qt::LeftButton);
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 4.0}) {
        resizeTo(scale, table);
        EXPECT_NEAR(scaleOf(table), scale, 0.01);
        const auto ace = mainMod.tableTracker->identifyCard(5000, 5000);
        ASSERT_EQ(ace->getStr(), "Ace of Spades");
        const PixelScale pixels(scaleOf(table) * surface->devicePixelRatioF());
        const QPoint origin = surface->mapTo(table, QPoint(0, 0));
        const auto twips = [&](int pixel) { return pixels.twips(pixel); };
        const auto act = [&](QEvent::Type type, QPoint at, Qt::MouseButton button) { // at a device pixel
            const QPointF place = origin + QPointF(at) / surface->devicePixelRatioF();
            const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
            QMouseEvent event(type, place, place, table->mapToGlobal(place), button, held, {});
            QCoreApplication::sendEvent(table->windowHandle(), &event);
        };
        table->setUpdatesEnabled(false);
        QPoint at(pixels.pixel(5000), pixels.pixel(5000));
        const float heldX = twips(at.x()) - static_cast<float>(ace->x1());
        const float heldY = twips(at.y()) - static_cast<float>(ace->y1());
        act(QEvent::MouseButtonPress, at, Qt::LeftButton);
        for (int step = 0; step < 400; ++step) {
            at += step < 200 ? QPoint(1, -(step % 2)) : QPoint(-1, step % 2);
            act(QEvent::MouseMove, at, Qt::NoButton);
            ASSERT_EQ(twips(at.x()) - static_cast<float>(ace->x1()), heldX) << "step " << step << " at " << scale;
            ASSERT_EQ(twips(at.y()) - static_cast<float>(ace->y1()), heldY) << "step " << step << " at " << scale;
        }
        act(QEvent::MouseButtonRelease, at, Qt::LeftButton);
        table->setUpdatesEnabled(true);
        expectBorderOf(*ace, picture(surface), pixels);
    }
}

TEST_F(Windows, AResizeKeepsWhatIsGoingOn) {
    QWidget* table = openTable();
    QWidget* surface = control("Tumble", "picTable");
    const auto* label = qobject_cast<QLabel*>(control("Tumble", "lblCurrentCard"));
    const auto ace = mainMod.tableTracker->identifyCard(4400, 3500);
    mouse(QTest::MousePress, 4395, 3495, Qt::LeftButton);
    mouse(QTest::MouseMove, 4995, 3795);
    resizeTo(2, table);
    EXPECT_TRUE(mainMod.tableTracker->moveInProg());
    EXPECT_EQ(label->text(), "Ace of Spades");
    EXPECT_EQ(picture(surface).pixel(10, 10), blue) << "a pile while a card is dragged";
    mouse(QTest::MouseMove, 5595, 4095);
    EXPECT_EQ(ace->x1(), 5595 - 4395 + 3550) << "still held where it was";
    mouse(QTest::MouseRelease, 5595, 4095, Qt::LeftButton);

    table->resize(1, 32000);
    EXPECT_EQ(surface->size(), QSize(601, 401));
    EXPECT_NEAR(surface->geometry().center().y(), 16000, 20) << "in the middle";
}

TEST_F(Windows, TheFocusAndTheDefaultButtonShowInEveryStyle) {
    const QString usual = QApplication::style()->name();
    for (const QString& style : QStyleFactory::keys()) {
        QApplication::setStyle(style);
        frmTumbleOptions options({});
        options.Show();
        QWidget* dialog = window("Tumble Options");
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
        dialog->setAttribute(Qt::WA_KeyboardFocusChange); // as Tab does
        for (const char* name :
             {"cmdPlay", "cmdExit", "optCardNormal", "sldBackDesign", "pctCardSize", "pctBackDesign"}) {
            QWidget* widget = control("Tumble Options", name);
            dialog->setFocus();
            const QImage without = picture(dialog);
            widget->setFocus(Qt::TabFocusReason);
            EXPECT_NE(picture(dialog), without) << name << " in " << style.toStdString();
        }
        for (const char* name : {"cmdPlay", "cmdExit"}) {
            auto* button = qobject_cast<QPushButton*>(control("Tumble Options", name));
            const QImage before = picture(button);
            button->setDefault(!button->isDefault());
            EXPECT_NE(picture(button), before) << name << " in " << style.toStdString();
        }
        options.Unload();
    }
    QApplication::setStyle(usual);
}

TEST(QtCanvasTest, DecodesAndScalesAPicture) {
    PictureCache pictures({}, decoded);
    constexpr std::array noise{std::byte{'G'}, std::byte{'I'}, std::byte{'F'}};
    const Picture broken("broken", noise);
    QtCanvas canvas({82, 128}, 0);
    pictures.paint(canvas, CardImages::find("AceSpades"), canvas.bounds(), canvas.bounds());
    EXPECT_EQ(canvas.image().pixelColor(41, 110), QColor(Qt::white));
    EXPECT_EQ(canvas.image().pixelColor(6, 26), QColor(Qt::black)) << "in the index";
    pictures.paint(canvas, broken, canvas.bounds(), canvas.bounds());
    EXPECT_EQ(canvas.image().pixelColor(41, 64), QColor(Qt::red));
}

/// A warning from the toolkit during a test fails the test.
void onMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    const bool isOffscreenLimit = message.startsWith("This plugin does not support");
    if (type != QtDebugMsg && type != QtInfoMsg && !isOffscreenLimit) {
        ADD_FAILURE() << message.toStdString();
    }
}

} // namespace

} // namespace tumble

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QTemporaryFile screens;
    screens.open();
    screens.write(tumble::screensFile());
    screens.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
    QApplication application(argc, argv);
    qInstallMessageHandler(tumble::onMessage);
    return RUN_ALL_TESTS();
}
