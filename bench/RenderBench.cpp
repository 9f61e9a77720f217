#include "BenchScenes.h"
#include "app/SceneDocument.h"
#include "qt/QtCanvas.h"
#include "render/BlankCanvas.h"
#include "render/KorvanOpsConsts.h"
#include "render/ViewportRenderer.h"

#include <QGuiApplication>
#include <benchmark/benchmark.h>

namespace {

ViewSpecs isometric() {
    ViewSpecs view;
    KorvanOpsConsts::setOrthoView(KorvanOpsConsts::viewIsometric, view);
    return view;
}

// One viewport redraw of 1600 x 900 pixels. With the BlankCanvas nothing is painted, so the
// time is the geometry alone (transform, cull, clip, sort, shade); with the QtCanvas it
// includes filling the polygons into the image. The difference is the filling.
template <class CanvasType> void redraw(benchmark::State& state, SceneDocument document) {
    CanvasType canvas(1600, 900);
    ViewportRenderer renderer;
    const ViewSpecs view = isometric();
    for (auto _ : state) {
        renderer.redrawViewport(canvas, view, document.scene());
        benchmark::ClobberMemory();
    }
}

} // namespace

static void BM_Redraw_StartUp_Geometry(benchmark::State& state) {
    redraw<BlankCanvas>(state, SceneDocument::startUp());
}
static void BM_Redraw_StartUp_Painted(benchmark::State& state) {
    redraw<QtCanvas>(state, SceneDocument::startUp());
}
static void BM_Redraw_20Prisms_Geometry(benchmark::State& state) {
    redraw<BlankCanvas>(state, BenchScenes::twentyPrisms());
}
static void BM_Redraw_20Prisms_Painted(benchmark::State& state) {
    redraw<QtCanvas>(state, BenchScenes::twentyPrisms());
}
static void BM_Redraw_Twisted64x100_Geometry(benchmark::State& state) {
    redraw<BlankCanvas>(state, BenchScenes::twistedExtrusion());
}
static void BM_Redraw_Twisted64x100_Painted(benchmark::State& state) {
    redraw<QtCanvas>(state, BenchScenes::twistedExtrusion());
}
BENCHMARK(BM_Redraw_StartUp_Geometry)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Redraw_StartUp_Painted)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Redraw_20Prisms_Geometry)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Redraw_20Prisms_Painted)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Redraw_Twisted64x100_Geometry)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Redraw_Twisted64x100_Painted)->Unit(benchmark::kMillisecond);

// QPainter needs a GUI application for fonts; the offscreen platform needs no display.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
