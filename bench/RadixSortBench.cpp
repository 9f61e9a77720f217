#include "../tests/support/ReferenceRadixSort.h"
#include "render/RadixSort.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <random>
#include <vector>

namespace {

// Keys per second through the depth sort, on depths such as a redraw produces: eye-space
// z in [-20, 20] with four decimals.
template <class Sorter, class MakeSorter>
void sortDepths(benchmark::State& state, MakeSorter makeSorter) {
    const auto count = static_cast<size_t>(state.range(0));
    std::mt19937 random(12345);
    std::uniform_int_distribution<int> tenThousandths(-200000, 200000);
    std::vector<std::shared_ptr<int>> objects(count);
    std::vector<float> depths(count);
    for (size_t i = 0; i < count; ++i) {
        objects[i] = std::make_shared<int>(static_cast<int>(i));
        depths[i] = static_cast<float>(tenThousandths(random)) / 10000.0f;
    }
    for (auto _ : state) {
        Sorter& sorter = makeSorter();
        for (size_t i = 0; i < count; ++i) {
            sorter.addObject(objects[i], depths[i]);
        }
        auto sorted = sorter.getSortedObjects();
        benchmark::DoNotOptimize(sorted.data());
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(count));
}

} // namespace

// One sorter is reused, as the main window does.
static void BM_RadixSort(benchmark::State& state) {
    RadixSort<int> sorter;
    sortDepths<RadixSort<int>>(state, [&]() -> RadixSort<int>& {
        sorter.reset(8);
        return sorter;
    });
}
// The queue-based sort the fast one must agree with.
static void BM_RadixSortReference(benchmark::State& state) {
    std::unique_ptr<ReferenceRadixSort<int>> sorter;
    sortDepths<ReferenceRadixSort<int>>(state, [&]() -> ReferenceRadixSort<int>& {
        sorter = std::make_unique<ReferenceRadixSort<int>>(8);
        return *sorter;
    });
}
BENCHMARK(BM_RadixSort)->Arg(1000)->Arg(10000)->Arg(100000);
BENCHMARK(BM_RadixSortReference)->Arg(1000)->Arg(10000)->Arg(100000);
