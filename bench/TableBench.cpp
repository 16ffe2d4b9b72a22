// Actions of the player at the table, on the desktop in memory and on the real one with an offscreen platform.

#include "art/Pictures.h"
#include "game/MainMod.h"
#include "platform/memory/MemoryDesktop.h"
#include "platform/qt/QtDesktop.h"

#include <QApplication>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <memory>
#include <optional>

namespace tumble {
namespace {

/// A desktop in memory.
class InMemory {
public:
    void opened() {}
    void show() {}

private:
    MemoryDesktop desktop_{application()};
};

/// The real desktop. Its windows open at scale 1 and are then enlarged.
template<int scale>
class OnScreen {
public:
    void opened() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible()) {
                widget->resize(widget->minimumSize() * scale);
            }
        }
        show();
    }
    void show() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(); // the repaint that those have requested
    }

private:
    QtDesktop desktop_{application(),
                       [](const auto& picture, auto& canvas) { return art::drawPicture(picture.Key, canvas); }};
};

/// A spread of 24, 52 or 104 cards.
template<class Desktop>
class Game {
public:
    explicit Game(std::int64_t cards) {
        const DeckType deck = cards == 24 ? dt24Card : cards == 52 ? dtStandard : dtDouble;
        program_.startGame(csNormal, bsFirst, fdFaceUp, deck, soNatural, lsSpread);
        desktop_.opened();
    }

    CardTracker& tracker() { return *program_.tableTracker; }
    void press(Point at) { table().MouseDown(1, 0, at.x, at.y); }
    void move(Point to) { table().MouseMove(0, 0, to.x, to.y); }
    void release(Point at) { table().MouseUp(1, 0, at.x, at.y); }
    void show() { desktop_.show(); }

private:
    PictureBox& table() { return program_.table().picTable; }

    Desktop desktop_;
    MainMod program_;
};

constexpr Point firstCard{1350, 1150};

Point onTheWay(int step) {
    const auto way = static_cast<float>(45 * (step < 100 ? step : 200 - step));
    return {firstCard.x + way, firstCard.y + way / 2};
}

template<class Desktop>
void DragStep(benchmark::State& state) {
    Game<Desktop> game(state.range(0));
    game.press(firstCard);
    for (int step = 0; state.KeepRunning(); step = (step + 1) % 200) {
        game.move(onTheWay(step));
        game.show();
    }
}

/// Every card is painted on a drop.
template<class Desktop>
void Drop(benchmark::State& state) {
    Game<Desktop> game(state.range(0));
    while (state.KeepRunning()) {
        state.PauseTiming();
        game.press(firstCard);
        game.move(onTheWay(10));
        game.move(firstCard);
        game.show();
        state.ResumeTiming();
        game.release(firstCard);
        game.show();
    }
}

template<class Desktop>
void Deal(benchmark::State& state) {
    while (state.KeepRunning()) {
        std::optional<Game<Desktop>> game(std::in_place, state.range(0));
        state.PauseTiming();
        game.reset();
        state.ResumeTiming();
    }
}

template<class Desktop>
void HitTest(benchmark::State& state) {
    Game<Desktop> game(state.range(0));
    for (int step = 0; state.KeepRunning(); step = (step + 1) % 200) {
        const Point at = onTheWay(step);
        benchmark::DoNotOptimize(game.tracker().identifyCard(at.x, at.y));
    }
}

using OnScreenAtScale1 = OnScreen<1>;
using OnScreenAtScale4 = OnScreen<4>;

// clang-format off
#define OF_EACH_DECK(action, desktop) BENCHMARK_TEMPLATE(action, desktop)->Arg(24)->Arg(52)->Arg(104)
OF_EACH_DECK(DragStep, InMemory); OF_EACH_DECK(DragStep, OnScreenAtScale1); OF_EACH_DECK(DragStep, OnScreenAtScale4);
OF_EACH_DECK(Drop, InMemory);     OF_EACH_DECK(Drop, OnScreenAtScale1);     OF_EACH_DECK(Drop, OnScreenAtScale4);
OF_EACH_DECK(Deal, InMemory);     OF_EACH_DECK(Deal, OnScreenAtScale1);     OF_EACH_DECK(Deal, OnScreenAtScale4);
OF_EACH_DECK(HitTest, InMemory);
// clang-format on

} // namespace
} // namespace tumble

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication toolkit(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
