#include "Windows.h"

#include "platform/forms/MessageBox.h"

#include <QAbstractButton>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace tumble {

namespace {

struct TestScreen {
    int width; // logical pixels
    int height;
    double ratio;
    double scale; // at which the table opens there
};

// Side by side. QT_SCALE_FACTOR enlarges the first, which the other tests use.
constexpr std::array testScreens{
    TestScreen{800, 600, 1, 1},           TestScreen{1280, 800, 1, 1.375}, TestScreen{1920, 1080, 2, 1.875},
    TestScreen{640, 360, 3, 356 / 442.0}, TestScreen{400, 300, 1, 0.75},
};

} // namespace

QByteArray screensFile() {
    QJsonArray screens;
    int left = 0;
    double factor = qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble();
    for (const auto& [width, height, ratio, scale] : testScreens) {
        screens.append(QJsonObject{{"name", QString::number(screens.size())},
                                   {"x", left},
                                   {"y", 0},
                                   {"width", width * factor},
                                   {"height", height * factor},
                                   {"dpr", ratio},
                                   {"logicalDpi", 96},
                                   {"logicalBaseDpi", 96}});
        left += qRound(width * factor);
        factor = 1;
    }
    return QJsonDocument(QJsonObject{{"screens", screens}}).toJson();
}

namespace {

/// The window and its frame lie inside the screen, in the middle of a place; the window has an icon.
void expectInMiddle(const QWidget* window, const QRect& place) {
    EXPECT_TRUE(window->screen()->availableGeometry().contains(window->frameGeometry()));
    EXPECT_LE((window->frameGeometry().center() - place.center()).manhattanLength(), 2);
    EXPECT_FALSE(window->windowIcon().isNull());
}

class Screens : public Windows {
protected:
    static QScreen* screenAt(int number) {
        const auto screens = QGuiApplication::screens();
        return *std::find_if(screens.begin(), screens.end(),
                             [&](const QScreen* screen) { return screen->name() == QString::number(number); });
    }

    /// The dialog, as if the player had moved it to the screen.
    QWidget* openDialogOn(QScreen* screen) {
        QWidget* dialog = openDialog();
        expectInMiddle(dialog, QGuiApplication::primaryScreen()->geometry());
        dialog->move(screen->geometry().topLeft());
        QCoreApplication::processEvents();
        EXPECT_EQ(dialog->screen(), screen);
        return dialog;
    }

    static void refuse() {
        MsgBox("You must play either a Queen of Diamonds or a King of Diamonds or a Joker", "Invalid Move!");
    }
};

class EachScreen : public Screens, public testing::WithParamInterface<int> {};

TEST_P(EachScreen, HoldsWhatOpensThere) {
    QScreen* screen = screenAt(GetParam());
    const double scale = testScreens.at(static_cast<std::size_t>(GetParam())).scale;
    const QWidget* table = play(openDialogOn(screen));
    EXPECT_EQ(table->screen(), screen);
    EXPECT_NEAR(scaleOf(table), scale, 0.002);
    EXPECT_NEAR(table->minimumWidth(), 635 * std::min(scale, 1.0), 1);
    if (scale > 0.75) {
        expectInMiddle(table, screen->geometry());
    }
    inModal([] { frmTumble::cmdAbout_Click(); }, Qt::Key_Escape,
            [&](const QWidget* about) {
                EXPECT_EQ(about->windowTitle(), "About Tumble");
                EXPECT_EQ(about->windowHandle()->transientParent(), table->windowHandle());
                EXPECT_NEAR(scaleOf(about), scale, 0.01);
                expectInMiddle(about, screen->geometry());
            });
    inModal([] { refuse(); }, Qt::Key_Return,
            [&](const QWidget* message) {
                EXPECT_EQ(message->windowHandle()->transientParent(), table->windowHandle());
                EXPECT_NEAR(scaleOf(message), scale, 0.01);
                EXPECT_EQ(message->findChildren<QAbstractButton*>().size(), 1);
                EXPECT_TRUE(screen->geometry().contains(message->frameGeometry()));
                if (scale > 0.75) {
                    expectInMiddle(message, table->frameGeometry());
                }
            });
}

INSTANTIATE_TEST_SUITE_P(Screens, EachScreen, testing::Range(0, static_cast<int>(testScreens.size())));

TEST_F(Screens, ShowTheNextWindowAsTheOneBefore) {
    QScreen* screen = screenAt(1);
    const auto f11 = [](QWidget* window) {
        QTest::keyClick(window, Qt::Key_F11);
        QCoreApplication::processEvents();
    };
    QWidget* dialog = openDialogOn(screen);
    dialog->showMaximized();
    QCoreApplication::processEvents();
    QWidget* table = play(dialog);
    EXPECT_EQ(table->windowState(), Qt::WindowMaximized);
    EXPECT_EQ(table->frameGeometry(), screen->geometry());
    for (const auto& say : {std::function<void()>([] { MsgBox("text"); }), std::function<void()>(refuse)}) {
        inModal(say, Qt::Key_Escape, [&](const QWidget* box) {
            EXPECT_NEAR(box->findChild<QLabel*>()->font().pointSizeF(), 9 * scaleOf(table), 0.1) << "as wide as needed";
        });
    }
    f11(table);
    EXPECT_TRUE(table->isFullScreen());
    EXPECT_EQ(table->geometry(), screen->geometry());
    inModal([] { frmTumble::cmdAbout_Click(); }, Qt::Key_Return,
            [&](QWidget* about) {
                f11(about);
                EXPECT_EQ(about->windowState(), Qt::WindowNoState);
                EXPECT_NEAR(scaleOf(about), scaleOf(table), 0.01);
                expectInMiddle(about, screen->geometry());
            });
    f11(table);
    EXPECT_EQ(table->windowState(), Qt::WindowMaximized);
}

/// Acts when a widget paints for the first time.
class OnFirstPaint : public QObject {
public:
    OnFirstPaint(QString name, std::function<void(QWidget&)> act) : name_(std::move(name)), act_(std::move(act)) {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object->objectName() == name_ && act_ != nullptr) {
            std::exchange(act_, nullptr)(*qobject_cast<QWidget*>(object));
        }
        return false;
    }

private:
    QString name_;
    std::function<void(QWidget&)> act_;
};

TEST_F(Windows, TheTableShowsEmptyUnderAnHourglassBeforeTheDeal) {
    bool shown = false;
    const OnFirstPaint atTheTable("picTable", [&](QWidget& surface) {
        shown = true;
        EXPECT_TRUE(mainMod.table().picTable.displayList().items().empty());
        EXPECT_EQ(surface.cursor().shape(), Qt::WaitCursor);
        QMouseEvent press(QEvent::MouseButtonPress, {9, 9}, {9, 9}, Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(&surface, &press);
        QTest::keyClick(&surface, Qt::Key_Return); // would leave the game at another time
    });
    const QWidget* table = openTable();
    EXPECT_TRUE(shown);
    EXPECT_EQ(control("Tumble", "picTable")->cursor().shape(), Qt::ArrowCursor);
    EXPECT_TRUE(table->isVisible());
    EXPECT_EQ(mainMod.table().lblCurrentCard.Caption(), "");
}

TEST_F(Windows, RefreshBringsEverythingToTheScreenAtOnce) {
    openTable();
    const QImage before = control("Tumble", "picTable")->grab().toImage();
    bool captionShown = false;
    const OnFirstPaint atTheLabel("lblCurrentCard", [&](const QWidget&) { captionShown = true; });
    mainMod.table().lblCurrentCard.Caption("None");
    mainMod.table().Refresh();
    EXPECT_TRUE(captionShown);
    mainMod.tableTracker->identifyCard(4400, 3500);
    mainMod.tableTracker->flipCurCard();
    mainMod.table().Refresh();
    EXPECT_NE(control("Tumble", "picTable")->grab().toImage(), before);
}

TEST_F(Windows, AMessageBelongsToTheWindowShownLastOfThoseThatShow) {
    Form first("first", 3000, 1500);
    Form second("second", 3000, 1500);
    const auto expectMessageOver = [&](const char* title) {
        inModal([&] { MsgBox("text"); }, Qt::Key_Return,
                [&](const QWidget* box) { EXPECT_EQ(box->windowHandle()->transientParent()->title(), title); });
    };
    first.Show();
    second.Show();
    expectMessageOver("second");
    first.Show();
    expectMessageOver("first");
    first.Hide();
    expectMessageOver("second");
}

TEST_F(Windows, AFormUnderABoxReceivesNothing) {
    QWidget* table = openTable();
    inModal([] { frmTumble::cmdHelp_Click(); }, Qt::Key_Return,
            [&](const QWidget* /*box*/) {
                qobject_cast<QAbstractButton*>(control("Tumble", "cmdExit"))->click(); // as a screen reader does
                table->close();
            });
    EXPECT_TRUE(table->isVisible());
    QTimer::singleShot(0, qApp, [&] { mainMod.table().cmdExit.Click(); });
    desktop.run(); // so that the exit ends this loop, not one of a later test
    EXPECT_EQ(window("Tumble"), nullptr);
}

TEST(WorkAreaTest, TheTableOpensAsLargeAsLooksWellAndLiesInsideTheScreen) {
    using Case = std::tuple<QSize, double, double>;
    for (const auto& [screen, ratio, scale] :
         {Case{{800, 600}, 1, 1}, Case{{800, 480}, 1, 1}, Case{{1366, 768}, 1, 1.375}, Case{{3840, 2160}, 1, 3.875},
          Case{{1920, 1080}, 2, 1.875}, Case{{683, 384}, 2, 348 / 442.0}, Case{{640, 360}, 3, 324 / 442.0},
          Case{{600, 1024}, 1, 592 / 635.0}, Case{{400, 300}, 1, 0.75}}) {
        const WorkArea area({{-100, 0}, screen}, screen, ratio, {});
        EXPECT_NEAR(area.openingScale(FormSize(9525, 6630)), scale, 1e-9) << screen.width();
        EXPECT_NEAR(area.leastScale(FormSize(9525, 6630)), std::min(scale, 1.0), 1e-9) << screen.width();
    }
    const WorkArea area({0, 0, 800, 560}, {800, 600}, 1, {});
    EXPECT_EQ(area.place({50, 50}, {500, 300, 100, 300}), QRect(525, 425, 50, 50));
    EXPECT_EQ(area.place({300, 300}, {700, 400, 100, 200}), QRect(496, 256, 300, 300)) << "moved in";
    EXPECT_EQ(area.place({900, 700}, {700, 400, 100, 200}), QRect(4, 32, 900, 700)) << "too large";
}

} // namespace

} // namespace tumble
