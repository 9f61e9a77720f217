#include "render/KorvanOpsConsts.h"

#include "render/BlankCanvas.h"

#include <benchmark/benchmark.h>

// The cost of building the matrix that maps world points onto a viewport's canvas,
// paid once per viewport per redraw.
static void BM_FullViewMatrix(benchmark::State& state) {
    BlankCanvas canvas(1600, 900);
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
    for (auto _ : state) {
        view.EyeTheta += 1e-6f;
        benchmark::DoNotOptimize(KorvanOpsConsts::getFullViewMatrix(canvas, view));
    }
}
BENCHMARK(BM_FullViewMatrix);
