#include "BenchCanvas.h"
#include "render/KorvanOpsConsts.h"
#include "scene/Solid3d.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <vector>

namespace {

// A torus of rings x segments quads, faces listed outward: seen from the isometric view
// its visible faces overlap each other on the canvas (the near side of the tube covers
// the far side of the hole), so the painter's sort has real work to do.
std::shared_ptr<Solid3d> makeTorus(int rings, int segments) {
    auto torus = std::make_shared<Solid3d>();
    std::vector<float> points;
    const double twoPi = 6.28318530717958;
    for (int i = 0; i < rings; ++i) {
        const double u = twoPi * i / rings;
        for (int j = 0; j < segments; ++j) {
            const double v = twoPi * j / segments;
            const double r = 2.0 + 0.7 * std::cos(v);
            points.push_back(static_cast<float>(r * std::cos(u)));
            points.push_back(static_cast<float>(0.7 * std::sin(v)));
            points.push_back(static_cast<float>(r * std::sin(u)));
        }
    }
    torus->addPointsArray(points);
    const auto index = [&](int i, int j) {
        return static_cast<int32_t>((i % rings) * segments + (j % segments) + 1);
    };
    for (int i = 0; i < rings; ++i) {
        for (int j = 0; j < segments; ++j) {
            torus->AddFace(std::vector<int32_t>{index(i, j), index(i, j + 1), index(i + 1, j + 1),
                                                index(i + 1, j)});
        }
    }
    torus->HideSurfaces = true;
    return torus;
}

void project(Solid3d& solid) {
    BenchCanvas canvas;
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
    float ex;
    float ey;
    float ez;
    KorvanOpsConsts::getEyePosition(view, ex, ey, ez);
    solid.Culled(false);
    solid.cull(ex, ey, ez);
    solid.ApplyFull(KorvanOpsConsts::getFullViewMatrix(canvas, view), false);
    solid.clipEye(view.EyeR);
}

} // namespace

// The painter's face order of one solid, by face count (rings x segments = 1,000, 4,000,
// 16,000), seen from the isometric view.
static void BM_SortFaces(benchmark::State& state) {
    const int rings = static_cast<int>(state.range(0));
    auto torus = makeTorus(rings, rings * 8 / 5);
    project(*torus);
    for (auto _ : state) {
        benchmark::DoNotOptimize(torus->SortFaces());
    }
    state.SetComplexityN(torus->GetFaceNum());
    state.counters["faces"] = torus->GetFaceNum();
}
BENCHMARK(BM_SortFaces)->Arg(25)->Arg(50)->Arg(100)->Unit(benchmark::kMillisecond)->Complexity();
