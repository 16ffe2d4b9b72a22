#include "Windows.h"

#include <QBackingStore>
#include <QImage>
#include <QKeyEvent>
#include <QScopeGuard>
#include <QStyleHints>
#include <QWindow>

#include <qpa/qwindowsysteminterface_p.h>

#include <cstdlib>
#include <limits>
#include <memory>
#include <tuple>
#include <utility>

namespace tumble {

namespace {

/// The table, with a list of the button events that its picture box receives: "down 1 up 1 ".
class Inputs : public Windows {
protected:
    void SetUp() override {
        table = openTable();
        surface = control("Tumble", "picTable");
        origin = surface->mapTo(table, QPoint(0, 0));
        note(mainMod.table().picTable.MouseDown, "down ");
        note(mainMod.table().picTable.MouseUp, "up ");
    }

    void note(PictureBox::MouseEvent& event, const char* what) {
        event = [this, what, act = event](auto Button, auto Shift, float X, float Y) {
            received += what + std::to_string(Button) + " ";
            act(Button, Shift, X, Y);
        };
    }

    std::string receivedSince() { return std::exchange(received, ""); }

    QWidget* table = nullptr;
    QWidget* surface = nullptr;
    QPoint origin; // of the surface in the window
    std::string received;
};

/// The bounding box of the pixels in which two pictures of one size differ.
QRect difference(const QImage& one, const QImage& other) {
    QRect block;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            block |= one.pixel(x, y) != other.pixel(x, y) ? QRect(x, y, 1, 1) : QRect();
        }
    }
    return block;
}

TEST_F(Inputs, KeysMoveAPointerWhoseRingShowsWithTheFocus) {
    const auto onScreen = [&] {
        const auto* window = dynamic_cast<const QImage*>(table->backingStore()->paintDevice());
        const double ratio = table->devicePixelRatioF();
        return window->copy(QRectF(origin * ratio, surface->size() * ratio).toAlignedRect());
    };
    const auto comesToShow = [&](const QImage& picture) {
        return QTest::qWaitFor([&] { return onScreen() == picture; });
    };
    const QImage bare = surface->grab().toImage().convertToFormat(onScreen().format());
    EXPECT_TRUE(comesToShow(bare));
    const std::vector<std::tuple<Qt::Key, std::string, std::string>> steps{
        {Qt::Key_Right, "", "Ace of Spades"}, // only shows the pointer
        {Qt::Key_Left, "", "Ace of Hearts"},
        {Qt::Key_Up, "", "Five of Hearts"},
        {Qt::Key_Down, "", "Ace of Hearts"},
        {Qt::Key_PageUp, "", "Pile (empty)"},
        {Qt::Key_Left, "", "Ten of Spades"},
        {Qt::Key_End, "", "Pile (empty)"},
        {Qt::Key_Right, "", "King of Clubs"},
        {Qt::Key_PageDown, "", "Pile (empty)"},
        {Qt::Key_Left, "", "Eight of Hearts"},
        {Qt::Key_F, "down 2 up 2 ", "Eight of Hearts"},
        {Qt::Key_Menu, "down 2 up 2 ", "Eight of Hearts"},
        {Qt::Key_F10, "down 2 up 2 ", "Eight of Hearts"},
        {Qt::Key_F, "down 2 up 2 ", "Eight of Hearts"},
        {Qt::Key_Home, "", "Pile (empty)"},
        {Qt::Key_Right, "", "Two of Diamonds"}};
    for (const auto& [key, buttons, name] : steps) {
        QTest::keyClick(surface, key, key == Qt::Key_F10 ? Qt::ShiftModifier : Qt::NoModifier);
        EXPECT_EQ(receivedSince(), buttons);
        EXPECT_EQ(mainMod.table().lblCurrentCard.Caption(), name);
    }
    const int side = qRound(26 * surface->devicePixelRatioF());
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const QSize cursor = difference(onScreen(), bare).size();
        return std::abs(cursor.width() - side) <= 1 && std::abs(cursor.height() - side) <= 1;
    }));
    const QImage ringed = onScreen();
    QTest::keyClick(surface, Qt::Key_Tab);
    EXPECT_TRUE(comesToShow(bare));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(comesToShow(ringed));
    mouse(QTest::MouseMove, 5000, 4000);
    mouse(QTest::MouseMove, 5500, 4000);
    EXPECT_TRUE(comesToShow(bare));
    control("Tumble", "cmdExit")->setFocus();
    mouse(QTest::MousePress, 5500, 4000, Qt::LeftButton);
    EXPECT_TRUE(surface->hasFocus());
}

TEST_F(Inputs, WhatSpaceHoldsOutlastsABoxAndATabAway) {
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Home, Qt::Key_Right, Qt::Key_Space}) {
        QTest::keyClick(surface, key);
    }
    QKeyEvent repetition(QEvent::KeyPress, Qt::Key_Space, {}, {}, true);
    QCoreApplication::sendEvent(surface, &repetition);
    inModal([&] { QTest::keyClick(surface, Qt::Key_F1); }, Qt::Key_Return,
            [](const QWidget* box) { EXPECT_EQ(box->windowTitle(), "Tumble Instructions"); });
    table->activateWindow(); // as a window manager does
    EXPECT_TRUE(QTest::qWaitForWindowActive(table));
    QTest::keyClick(surface, Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QTest::keyClick(surface, Qt::Key_Home);
    EXPECT_EQ(receivedSince(), "down 1 ");
    QTest::keyClick(surface, Qt::Key_Space);
    EXPECT_EQ(receivedSince(), "up 1 ");
    EXPECT_EQ(mainMod.table().lblCurrentCard.Caption(), "Pile (Two of Diamonds)");
}

TEST_F(Inputs, AFingerDragsCardsAndTurnsThem) {
    QStyleHints& hints = *QGuiApplication::styleHints();
    const auto usual = qScopeGuard([&] { hints.setMousePressAndHoldInterval(-1); });
    static const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    auto finger = QTest::touchEvent(table->windowHandle(), screen.get());
    const auto touch = [&](QPoint at) { finger.press(0, origin + at).commit(); };
    const auto move = [&](QPoint at) { finger.move(0, origin + at).commit(); };
    const auto lift = [&](QPoint at) { finger.release(0, origin + at).commit(false); };
    const auto picture = [&] {
        QCoreApplication::processEvents();
        return surface->grab().toImage();
    };
    // The width of the part of the table that a long press changes.
    const auto turned = [&](QPoint at) {
        const QImage before = picture();
        hints.setMousePressAndHoldInterval(0);
        touch(at);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !received.empty(); }));
        move(at + QPoint(90, 90));
        lift(at + QPoint(90, 90));
        EXPECT_EQ(receivedSince(), "down 2 up 2 ");
        hints.setMousePressAndHoldInterval(std::numeric_limits<int>::max());
        return difference(picture(), before).width();
    };
    const QPoint corner(12, 16);

    EXPECT_NEAR(turned({125, 76}), 9 * surface->devicePixelRatioF(), 1) << "what the spread shows of one card";
    touch({90, 76});
    move({93, 79});
    EXPECT_EQ(receivedSince(), "");
    move({60, 50});
    EXPECT_EQ(receivedSince(), "down 1 ");
    move(corner);
    lift(corner);
    EXPECT_EQ(receivedSince(), "up 1 ");
    EXPECT_EQ(mainMod.pileTopLeft->numCards(), 1);
    EXPECT_EQ(turned(corner), 0) << "a pile";
    touch({115, 76});
    move(corner);
    inModal([&] { lift(corner); }, Qt::Key_Return,
            [](const QWidget* box) { EXPECT_EQ(box->windowTitle(), "Invalid Move!"); });
    EXPECT_EQ(receivedSince(), "down 1 up 1 ");
    touch({300, 350});
    lift({300, 350});
    EXPECT_EQ(receivedSince(), "down 1 up 1 ");
}

TEST_F(Inputs, APenIsAMouse) {
    QWindowSystemInterfacePrivate::TabletEvent::setPlatformSynthesizesMouse(false); // so the toolkit does
    static const QPointingDevice pen("pen", 1, QInputDevice::DeviceType::Stylus, QPointingDevice::PointerType::Pen,
                                     QInputDevice::Capability::Position, 1, 3);
    const auto act = [&](QPoint at, Qt::MouseButtons held) {
        const QPointF place = QPointF(origin + at) * table->devicePixelRatioF();
        QWindowSystemInterface::handleTabletEvent(table->windowHandle(), &pen, place, place, held, 0.5, 0, 0, 0, 0, 0);
        QCoreApplication::processEvents();
    };
    act({90, 76}, Qt::LeftButton);
    act({60, 50}, Qt::LeftButton);
    act({12, 16}, Qt::NoButton);
    EXPECT_EQ(receivedSince(), "down 1 up 1 ");
    EXPECT_EQ(mainMod.pileTopLeft->numCards(), 1);
    act({120, 76}, Qt::RightButton); // of its barrel
    act({120, 76}, Qt::NoButton);
    EXPECT_EQ(receivedSince(), "down 2 up 2 ");
}

TEST(HeldKeysTest, AHeldKeyActsOnce) {
    constexpr int space = 32;
    constexpr int other = 33;
    HeldKeys held;
    EXPECT_FALSE(held.repeats(space, 10, false));
    EXPECT_TRUE(held.repeats(space, 20, true));
    held.released(space, 30);
    EXPECT_TRUE(held.repeats(space, 30, false));
    EXPECT_FALSE(held.repeats(other, 30, false));
    EXPECT_FALSE(held.repeats(space, 31, false));
    held.released(space, 0); // while a screen reader listens
    EXPECT_FALSE(held.repeats(space, 0, false));
}

} // namespace

} // namespace tumble
