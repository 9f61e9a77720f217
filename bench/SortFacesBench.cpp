#include "../tests/support/LiteralFaceOrder.h"
#include "BenchScenes.h"
#include "render/BlankCanvas.h"
#include "render/KorvanOpsConsts.h"
#include "scene/Solid3d.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <vector>

// The painter's face order, the plain quadratic scan (Literal, the reference the tests
// hold it to) beside the grid-indexed one the program uses (Fast). Both give the same list.

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
    return torus;
}

// Standard view viewNumber, turned by turn radians about the vertical axis.
void project(Solid3d& solid, int viewNumber, float turn = 0) {
    BlankCanvas canvas(1600, 900);
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(viewNumber, view);
    view.EyeTheta += turn;
    float ex;
    float ey;
    float ez;
    KorvanOpsConsts::getEyePosition(view, ex, ey, ez);
    solid.Culled(false);
    solid.cull(ex, ey, ez);
    solid.ApplyFull(KorvanOpsConsts::getFullViewMatrix(canvas, view), false);
    solid.clipEye(view.EyeR);
}

// count / 6 copies of one unit cube's six quads, none culled, mapped onto the canvas so
// that every face's box overlaps every other's.
std::shared_ptr<Solid3d> overlappingCubes(int count) {
    auto solid = std::make_shared<Solid3d>();
    solid->addPointsArray(
        std::vector<float>{0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0, 0, 0, 1, 1, 0, 1, 1, 1, 1, 0, 1, 1});
    const int32_t quads[6][4] = {{1, 4, 3, 2}, {5, 6, 7, 8}, {1, 2, 6, 5},
                                 {3, 4, 8, 7}, {2, 3, 7, 6}, {1, 5, 8, 4}};
    for (int i = 0; i < count; ++i) {
        solid->AddFace(quads[i % 6]);
    }
    // Every axis moves the canvas x and y both ways, so opposite faces overlap too.
    Matrix4 M;
    M3Ops::setIdentity(M);
    const float rows[3][3] = {{100, 100, 30}, {-100, 100, 50}, {100, -100, 80}};
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 3; ++c) {
            M(r + 1, c + 1) = rows[r][c];
        }
    }
    solid->Apply(M);
    return solid;
}

// The solids in turn, one per iteration.
template <class Order>
void run(benchmark::State& state, const std::vector<std::shared_ptr<Solid3d>>& solids,
         Order order) {
    size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(order(*solids[next]));
        next = (next + 1) % solids.size();
    }
    state.counters["faces"] = solids.front()->GetFaceNum();
}

const auto literal = [](const Solid3d& solid) { return literalSortFaces(solid); };
const auto fast = [](const Solid3d& solid) { return solid.SortFaces(); };

// Faces = rings x segments with segments = rings * 8 / 5, seen from the isometric view
// turned by 0 to 0.14 radians in eight steps, as a drag turns it: no two redraws of a drag
// sort the same projection. (Sorting one projection over and over lets the processor's
// branch predictor learn the whole sort of a small solid by heart, which makes 1,000 faces
// look half again as fast as any drag sees them.)
std::vector<std::shared_ptr<Solid3d>> toruses(const benchmark::State& state) {
    const auto rings = static_cast<int>(std::lround(std::sqrt(state.range(0) * 5.0 / 8.0)));
    std::vector<std::shared_ptr<Solid3d>> solids;
    for (int step = 0; step < 8; ++step) {
        solids.push_back(makeTorus(rings, rings * 8 / 5));
        project(*solids.back(), KorvanOpsConsts::viewIsometric, 0.02f * static_cast<float>(step));
    }
    return solids;
}

// The one solid of the twisted 64-corner star extrusion (about 51,000 triangles) seen from
// standard view 1 (top) to 4 (isometric); a subdivision adds 512 faces.
std::shared_ptr<Solid3d> twisted(int64_t view, int64_t subdivisions = 100) {
    auto solid =
        BenchScenes::twistedExtrusion(static_cast<int>(subdivisions)).solids.front()->getSolid();
    project(*solid, static_cast<int>(view));
    return solid;
}

// The same star in as many subdivisions as give range(1) faces, seen from view range(0).
std::shared_ptr<Solid3d> twistedWithFaces(const benchmark::State& state) {
    return twisted(state.range(0), state.range(1) / 512);
}

} // namespace

static void BM_SortFaces_Literal(benchmark::State& state) {
    run(state, toruses(state), literal);
}
static void BM_SortFaces_Fast(benchmark::State& state) {
    run(state, toruses(state), fast);
}
static void BM_SortFacesTwisted_Literal(benchmark::State& state) {
    run(state, {twisted(state.range(0))}, literal);
}
static void BM_SortFacesTwisted_Fast(benchmark::State& state) {
    run(state, {twisted(state.range(0))}, fast);
}
static void BM_SortFacesTwistedGrowth_Literal(benchmark::State& state) {
    run(state, {twistedWithFaces(state)}, literal);
}
static void BM_SortFacesTwistedGrowth_Fast(benchmark::State& state) {
    run(state, {twistedWithFaces(state)}, fast);
}
static void BM_SortFacesOverlap_Literal(benchmark::State& state) {
    run(state, {overlappingCubes(static_cast<int>(state.range(0)))}, literal);
}
static void BM_SortFacesOverlap_Fast(benchmark::State& state) {
    run(state, {overlappingCubes(static_cast<int>(state.range(0)))}, fast);
}
BENCHMARK(BM_SortFaces_Literal)
    ->Arg(1000)
    ->Arg(4000)
    ->Arg(16000)
    ->Arg(64000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SortFaces_Fast)
    ->Arg(1000)
    ->Arg(4000)
    ->Arg(16000)
    ->Arg(64000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SortFacesTwisted_Literal)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SortFacesTwisted_Fast)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);
// How the time grows with the faces of thinner and thinner rings, view by view.
const auto twistedGrowth = [](benchmark::internal::Benchmark* b) {
    b->ArgNames({"view", "faces"})
        ->ArgsProduct({{1, 2, 3, 4}, {16386, 32770, 65538}})
        ->Unit(benchmark::kMillisecond);
};
BENCHMARK(BM_SortFacesTwistedGrowth_Literal)->Apply(twistedGrowth);
BENCHMARK(BM_SortFacesTwistedGrowth_Fast)->Apply(twistedGrowth);
BENCHMARK(BM_SortFacesOverlap_Literal)->Arg(3000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SortFacesOverlap_Fast)->Arg(3000)->Arg(10000)->Unit(benchmark::kMillisecond);
