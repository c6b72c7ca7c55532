// A thousand entries on the band map: making them from the lists, and laying them out. The aim of a layout is 2 ms.
#include <benchmark/benchmark.h>

#include "band_map/map_layout.h"

namespace corvane {
namespace {

constexpr int spots = 1000;
constexpr MapSpace space{1040, 500, 14};

// Over all bands, or all on one frequency.
FeedState lists(bool crowded) {
    FeedState state;
    for (int row = 0; row < spots; ++row) {
        const Band& limits = limitsOf(static_cast<std::size_t>(row) % mapBands.size());
        const int hertz = limits.lowerBound + (limits.upperBound - limits.lowerBound) / spots * row;
        state.vqPotaArray.push_back(
            {{"N" + std::to_string(row) + "CALL", crowded ? "14250" : std::to_string(hertz / 1000), "SSB", "", "A Park",
              std::to_string(row % 60), "0", "0", "US-ME", "US-0001"}});
    }
    return state;
}

MapEntries entriesOf(const FeedState& state) {
    return mapEntries(state, {}, {}, {}, {}, [](const MapEntry&) { return true; });
}

double labelWidth(const MapEntry& entry) { return 16 + 7 * static_cast<double>(entry.name.size()); }

void makeEntries(benchmark::State& state) {
    const FeedState from = lists(false);
    for (auto _ : state) benchmark::DoNotOptimize(entriesOf(from));
}
BENCHMARK(makeEntries)->Unit(benchmark::kMillisecond);

void layOut(benchmark::State& state) {
    const MapEntries entries = entriesOf(lists(state.range(0) == 1));
    std::size_t marks = 0, labels = 0;
    for (const MapRow& row : layoutMap(entries, space, 5, labelWidth)) {
        marks += row.marks.size();
        labels += row.labels.size();
    }
    state.counters["marks"] = static_cast<double>(marks);
    state.counters["labels"] = static_cast<double>(labels);
    for (auto _ : state) benchmark::DoNotOptimize(layoutMap(entries, space, 5, labelWidth));
}
BENCHMARK(layOut)->ArgName("crowded")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace corvane

BENCHMARK_MAIN();
