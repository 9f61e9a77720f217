#include "../tests/support/LiteralFaceOrder.h"
#include "BenchScenes.h"
#include "app/frmTolvane.h"
#include "qt/QtCanvas.h"
#include "qt/QtModalHost.h"
#include "scene/FaceOrder.h"

#include <benchmark/benchmark.h>

namespace {

// The main window's full redraw for a 1600 x 900 client area, painted into Qt canvases:
// what every mouse movement over a viewport costs.
void redrawAll(benchmark::State& state, const SceneDocument& document) {
    std::array<QtCanvas, 4> canvases{QtCanvas(1, 1), QtCanvas(1, 1), QtCanvas(1, 1),
                                     QtCanvas(1, 1)};
    QtModalHost dialogs;
    frmTolvane form(dialogs);
    form.attachCanvases({&canvases[0], &canvases[1], &canvases[2], &canvases[3]});
    form.getDocument().solids = document.solids;
    form.getViewports().viewportLayout = static_cast<int32_t>(state.range(0));
    form.Form_Resize(1600, 900);
    for (auto _ : state) {
        form.redrawAllViewports();
        benchmark::ClobberMemory();
    }
}

} // namespace

static void BM_RedrawAll_StartUp(benchmark::State& state) {
    redrawAll(state, SceneDocument::startUp());
}
static void BM_RedrawAll_20Prisms(benchmark::State& state) {
    redrawAll(state, BenchScenes::twentyPrisms());
}
// The same redraw with the plain quadratic face order and with the program's: the pair
// shows what the fast order is worth to a whole redraw.
static void BM_RedrawAllTwisted_Literal(benchmark::State& state) {
    FaceOrder::sorterInUse = [](const FaceOrder::Faces& faces) { return literalSortFaces(faces); };
    redrawAll(state, BenchScenes::twistedExtrusion());
    FaceOrder::sorterInUse = &FaceOrder::sort;
}
static void BM_RedrawAllTwisted_Fast(benchmark::State& state) {
    redrawAll(state, BenchScenes::twistedExtrusion());
}
BENCHMARK(BM_RedrawAll_StartUp)->ArgName("layout")->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RedrawAll_20Prisms)->ArgName("layout")->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RedrawAllTwisted_Literal)
    ->ArgName("layout")
    ->Arg(1)
    ->Arg(4)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RedrawAllTwisted_Fast)
    ->ArgName("layout")
    ->Arg(1)
    ->Arg(4)
    ->Unit(benchmark::kMillisecond);
