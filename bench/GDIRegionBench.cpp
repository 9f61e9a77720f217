#include "render/GDIRegion.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <numbers>
#include <vector>

// Point tests per second against a 64-corner face, the most a selector asks per click.
static void BM_InRegion64(benchmark::State& state) {
    std::vector<CanvasPoint> corners;
    for (int i = 0; i < 64; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / 64.0;
        const double radius = i % 2 ? 200.0 : 120.0;
        corners.push_back({static_cast<int32_t>(std::nearbyint(400.0 + radius * std::cos(angle))),
                           static_cast<int32_t>(std::nearbyint(300.0 + radius * std::sin(angle)))});
    }
    GDIRegion region;
    region.createPolygonRegion(corners, GDIRegion::WindingFill);
    int32_t x = 0;
    for (auto _ : state) {
        x = (x + 37) % 800;
        benchmark::DoNotOptimize(region.inRegion(x, 300 + x % 200 - 100));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_InRegion64);
