#include "geometry/M3Ops.h"

#include <benchmark/benchmark.h>
#include <vector>

// Points per second through the projective transformation the renderer applies to
// every point of every object in every redraw.
static void BM_TransformPoint(benchmark::State& state) {
    Matrix4 M;
    M3Ops::buildViewMatrixSpherical(M, 1, 10.0f, 0.157f, 0.628f, 0, 0, 0, 0, 1, 0);
    std::vector<Point4> points(4096);
    for (size_t i = 0; i < points.size(); ++i) {
        points[i] = Point4{static_cast<float>(i % 17), static_cast<float>(i % 5) - 2.0f,
                           static_cast<float>(i % 11) * 0.5f, 1.0f};
    }
    std::vector<Point4> out(points.size());
    for (auto _ : state) {
        for (size_t i = 0; i < points.size(); ++i) {
            M3Ops::transformPoint(points[i], M, out[i]);
        }
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) *
                            static_cast<int64_t>(points.size()));
}
BENCHMARK(BM_TransformPoint);
