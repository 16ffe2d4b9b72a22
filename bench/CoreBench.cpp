// What needs no window: the display list, the shuffle and the sorts.

#include "game/MainMod.h"
#include "packs/CardPack.h"
#include "packs/OrderRankSuit.h"
#include "packs/OrderSuitRank.h"
#include "packs/Sorter.h"
#include "platform/memory/MemoryDesktop.h"
#include "table/CardTracker.h"

#include <benchmark/benchmark.h>

#include <random>

namespace tumble {
namespace {

/// A pack of 24, 52 or 104 cards in their natural order.
class Pack {
public:
    explicit Pack(std::int64_t cards) {
        tracker_.picture(&surface_);
        pack_.tracker(&tracker_);
        pack_.init(csNormal, fdFaceUp, bsFirst, cards == 24 ? dt24Card : cards == 52 ? dtStandard : dtDouble);
        std::mt19937 numbers(1); // NOLINT(cert-msc51-cpp): the same numbers in every run
        std::vector<float> values(4096);
        std::generate(values.begin(), values.end(),
                      [&] { return std::uniform_real_distribution<float>(0, 0.999F)(numbers); });
        desktop_.random().script(values);
    }
    CardPack& operator*() { return pack_; }
    const DrawingSurface& surface() const { return surface_; }

private:
    MemoryDesktop desktop_{application()};
    DrawingSurface surface_{9015, 6015, tableGreen};
    CardTracker tracker_;
    CardPack pack_;
};

void Shuffle(benchmark::State& state) {
    Pack pack(state.range(0));
    while (state.KeepRunning()) {
        (*pack).sort(soShuffled);
    }
}
BENCHMARK(Shuffle)->Arg(24)->Arg(52)->Arg(104);

/// Sorts a shuffled pack. The time includes a copy of its list.
void Sort(benchmark::State& state, const CardOrder& order) {
    Pack pack(state.range(0));
    (*pack).sort(soShuffled);
    while (state.KeepRunning()) {
        auto cards = (*pack).cards();
        Sorter::sortCards(cards, order);
        benchmark::DoNotOptimize(cards.data());
    }
}
const OrderRankSuit byRankThenSuit;
const OrderSuitRank bySuitThenRank;
BENCHMARK_CAPTURE(Sort, ByRankThenSuit, byRankThenSuit)->Arg(24)->Arg(52)->Arg(104);
BENCHMARK_CAPTURE(Sort, BySuitThenRank, bySuitThenRank)->Arg(24)->Arg(52)->Arg(104);

/// Repaints every item of a spread and prunes the list.
void Prune(benchmark::State& state) {
    Pack pack(state.range(0));
    (*pack).dealToTable(1300, 1000, 7644);
    DisplayList list = pack.surface().displayList();
    const auto items = list.items();
    while (state.KeepRunning()) {
        for (const DisplayItem& item : items) {
            list.add(item);
        }
        benchmark::DoNotOptimize(list.items().data());
    }
}
BENCHMARK(Prune)->Arg(24)->Arg(52)->Arg(104);

} // namespace
} // namespace tumble
